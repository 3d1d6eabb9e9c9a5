import QtQuick
import QtQuick.Controls
import Tolvane

// The phrase cards: one phrase of a category at a time, its picture above the German text and
// its meaning, and below the card the buttons to step back, hide the German text, play the
// recording, write the phrase and step on. On the desktop the arrow keys step and Space plays.
BasePage {
    id: page

    // Set by the screen that opens the cards.
    property string categoryId
    property int phraseIndex

    readonly property real buttonSize: 48 * textScale

    title: controller.title

    Component.onCompleted: controller.open(categoryId, phraseIndex)
    StackView.onDeactivating: controller.stopPlaying()

    PhraseCardVC {
        id: controller
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
            if (event.modifiers !== Qt.NoModifier) {
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
    }

    PhraseCardView {
        id: card
        x: page.margin
        y: page.margin
        width: parent.width - 2 * page.margin
        height: controls.y - 2 * page.margin
        phraseCard: controller
        textScale: page.textScale
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
