import QtQuick
import QtQuick.Controls
import Tolvane

// The phrase cards: one phrase of a category at a time, its picture above the German text and
// its meaning, and below the card the buttons to step back, hide the German text, play the
// recording, write the phrase, read it aloud and step on. On the desktop the arrow keys step,
// Space plays, and R is held like the record button (Space being taken).
BasePage {
    id: page

    // Set by the screen that opens the cards.
    property string categoryId
    property int phraseIndex

    // What sits between the card and the buttons while recording or after a failed recording.
    readonly property Item recordingLine: levelMeter.visible ? levelMeter
                                        : recordingError.visible ? recordingError : null
    // Six buttons and their gaps fit the narrowest window.
    readonly property real buttonSize: Math.min(48 * textScale, (width - 7 * 10 * LayoutMetrics.scaleX) / 6)

    title: controller.title
    rightButton: Component {
        IconButton {
            id: shadowButton
            objectName: "shadowButton"
            icon.source: "icons/btn_shadow.svg"
            Accessible.name: qsTr("Shadow")
            onClicked: page.open(shadowing, { categoryId: page.categoryId, phraseIndex: controller.currentIndex },
                                 shadowButton.mapToItem(page, Qt.point(width / 2, height / 2)))
        }
    }

    Component {
        id: shadowing
        ShadowingPage {}
    }

    Component.onCompleted: controller.open(categoryId, phraseIndex)
    StackView.onDeactivating: {
        comparisonPopup.close()
        controller.stopPlaying()
    }

    PhraseCardVC {
        id: controller

        onComparisonShown: comparisonPopup.open()
    }

    MicrophoneAlert {
        id: microphoneAlert
        objectName: "microphoneAlert"
        permission: controller.permission
        onClosed: keys.forceActiveFocus()
    }

    SpectrumCompViewPopup {
        id: comparisonPopup
        objectName: "comparisonPopup"
        comparison: controller.recording.comparison
        parent: Overlay.overlay
        x: (parent.width - width) / 2
        y: (parent.height - height) / 2
        width: 0.9 * parent.width
        height: 0.8 * parent.height
        onClosed: keys.forceActiveFocus()
    }

    PhraseWritePopView {
        id: writing
        objectName: "writePopUp"
        wordText: controller.phraseText
        onClosed: keys.forceActiveFocus()
    }

    Item {
        id: keys
        anchors.fill: parent
        focus: true

        Keys.onPressed: event => {
            if (recordButton.handleKey(event, true)) {
                // held like the button
            } else if (event.modifiers !== Qt.NoModifier) {
                event.accepted = false
            } else if (event.key === Qt.Key_Left && controller.lastItemEnabled) {
                controller.lastItem()
            } else if (event.key === Qt.Key_Right && controller.nextItemEnabled) {
                controller.nextItem()
            } else if (event.key === Qt.Key_Space) {
                controller.play()
            } else {
                event.accepted = false
            }
        }
        Keys.onReleased: event => event.accepted = recordButton.handleKey(event, false)
    }

    PhraseCardView {
        id: card
        x: page.margin
        y: page.margin
        width: parent.width - 2 * page.margin
        height: controls.y - 2 * page.margin - (page.recordingLine ? page.recordingLine.height + page.margin : 0)
        phraseCard: controller
        textScale: page.textScale
    }

    VoLevelMeter {
        id: levelMeter
        objectName: "levelMeter"
        visible: controller.recording.recording
        anchors.horizontalCenter: parent.horizontalCenter
        y: controls.y - height - page.margin
        width: 0.6 * parent.width
        height: 8 * LayoutMetrics.scaleY
        level: controller.recording.level
    }

    Label {
        id: recordingError
        objectName: "recordingErrorLbl"
        visible: text !== "" && !levelMeter.visible
        x: page.margin
        y: controls.y - height - page.margin
        width: parent.width - 2 * page.margin
        text: controller.recording.errorText
        color: AppColors.experience
        font.pixelSize: 15 * page.textScale
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }

    Row {
        id: controls
        anchors.horizontalCenter: parent.horizontalCenter
        y: parent.height - height - 1.5 * page.margin
        spacing: 10 * LayoutMetrics.scaleX

        IconButton {
            objectName: "lastItemButton"
            width: page.buttonSize
            height: page.buttonSize
            icon.source: "icons/" + controller.lastItemImage + ".svg"
            enabled: controller.lastItemEnabled
            Accessible.name: qsTr("Previous phrase")
            onClicked: controller.lastItem()
        }
        IconButton {
            objectName: "lookButton"
            width: page.buttonSize
            height: page.buttonSize
            icon.source: "icons/" + controller.lookImage + ".svg"
            enabled: controller.hasPhrase
            Accessible.name: controller.phraseHidden ? qsTr("Show the German text") : qsTr("Hide the German text")
            onClicked: controller.toggleLook()
        }
        IconButton {
            objectName: "playButton"
            width: page.buttonSize
            height: page.buttonSize
            icon.source: "icons/btn-play.svg"
            enabled: controller.hasPhrase
            Accessible.name: qsTr("Play")
            onClicked: controller.play()
        }
        IconButton {
            objectName: "writeButton"
            width: page.buttonSize
            height: page.buttonSize
            icon.source: "icons/btn-write.svg"
            enabled: controller.hasPhrase
            Accessible.name: qsTr("Write the phrase")
            onClicked: writing.open()
        }
        RecordButton {
            id: recordButton
            objectName: "recordButton"
            width: page.buttonSize
            height: page.buttonSize
            holdKey: Qt.Key_R
            enabled: controller.hasPhrase
            onHoldStarted: if (!controller.beginRecord()) microphoneAlert.open()
            onHoldEnded: controller.endRecord()
        }
        IconButton {
            objectName: "nextItemButton"
            width: page.buttonSize
            height: page.buttonSize
            icon.source: "icons/" + controller.nextItemImage + ".svg"
            enabled: controller.nextItemEnabled
            Accessible.name: qsTr("Next phrase")
            onClicked: controller.nextItem()
        }
    }
}
