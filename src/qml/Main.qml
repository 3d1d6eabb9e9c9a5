import QtQuick
import QtQuick.Controls
import Tolvane

ApplicationWindow {
    id: window

    width: 375
    height: 667
    visible: true
    title: qsTr("Tolvane")

    // The window stands for the phone's screen: every view scales from its size.
    onWidthChanged: LayoutMetrics.setScreenSize(width, height)
    onHeightChanged: LayoutMetrics.setScreenSize(width, height)
    Component.onCompleted: LayoutMetrics.setScreenSize(width, height)

    StackView {
        id: stack
        objectName: "stack"

        // The point the moving screen grows out of or shrinks into; a screen sets it just
        // before it pushes or pops (see BasePage).
        property point hitPoint: Qt.point(width / 2, height / 2)

        anchors.fill: parent
        initialItem: MainPage {}

        // Arabic reads from the right: every screen mirrors with the navigation, while texts
        // keep their own direction, so a German phrase still reads from the left.
        LayoutMirroring.enabled: UiLanguage.rightToLeft
        LayoutMirroring.childrenInherit: true

        pushEnter: ZoomTransition {
            id: grow
            origin: stack.hitPoint
        }
        popExit: ZoomTransition {
            origin: stack.hitPoint
            shrinking: true
        }
        // The screen underneath stays in place, visible, while the other one moves.
        pushExit: Transition {
            PauseAnimation { duration: grow.duration }
        }
        popEnter: Transition {
            PauseAnimation { duration: grow.duration }
        }

        // The learner is asked to rate the app on coming back to the main screen, never at
        // launch, so the question follows some study rather than interrupting the start.
        onBusyChanged: {
            if (!busy && depth === 1 && RatingPrompt.shouldPrompt())
                ratingPrompt.open()
        }
    }

    RatingPromptDialog {
        id: ratingPrompt
    }

    // Quitting saves everything, as closing the window does.
    Shortcut {
        sequences: [StandardKey.Quit]
        context: Qt.ApplicationShortcut
        onActivated: Qt.quit()
    }
}
