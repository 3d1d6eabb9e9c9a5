import QtQuick
import QtQuick.Controls
import Tolvane

// What every screen shares: the body colour, the tool bar with its back button, going back
// with the keyboard, and opening the next screen out of the point that was tapped. A screen
// declares its content inside; it fills the space below the tool bar.
FocusScope {
    id: page

    property alias title: toolBar.title
    // What the tool bar shows on its right, if anything.
    property alias rightButton: toolBar.rightButton
    // Where this screen grew out of, in the stack's coordinates; going back shrinks it into
    // the same point even when a deeper screen has used the stack's hit point since.
    property point openedFrom: Qt.point(width / 2, height / 2)
    default property alias content: body.data
    // Text grows with the smaller of the two design scales, so that a window much wider than
    // a phone does not get letters too tall for the rows and bars sized by its height.
    readonly property real textScale: Math.min(LayoutMetrics.scaleX, LayoutMetrics.scaleY)
    // Space between the screen's edges and its content.
    readonly property real margin: 12 * LayoutMetrics.scaleX

    readonly property bool canGoBack: StackView.index > 0

    // Pushes the screen made from the component, growing it out of the point, which is given
    // in this screen's coordinates.
    function open(component, properties, point) {
        const view = StackView.view
        const hit = mapToItem(view, point)
        view.hitPoint = hit
        view.push(component, Object.assign({ openedFrom: hit }, properties))
    }

    function back() {
        if (!canGoBack)
            return
        StackView.view.hitPoint = openedFrom
        StackView.view.pop()
    }

    StackView.onActivated: forceActiveFocus()

    Keys.onPressed: event => {
        const altLeft = event.key === Qt.Key_Left && (event.modifiers & Qt.AltModifier)
        if (canGoBack && (event.key === Qt.Key_Escape || event.key === Qt.Key_Backspace || altLeft)) {
            event.accepted = true
            back()
        }
    }

    Rectangle {
        anchors.fill: parent
        color: AppColors.body
    }

    Item {
        id: body
        anchors.top: toolBar.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }

    // Above the body, so content scrolled under the bar stays hidden.
    VoToolBarView {
        id: toolBar
        width: parent.width
        backVisible: page.canGoBack
        onBack: page.back()
    }
}
