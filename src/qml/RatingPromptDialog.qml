import QtQuick
import QtQuick.Controls
import Tolvane

// Asks whether the learner would rate the app. Every way out answers RatingPrompt: a button
// says which, and closing the dialog otherwise (Escape) counts as "Later".
Dialog {
    id: dialog

    property bool answered: false

    function answer(action) {
        answered = true
        action()
        close()
    }

    objectName: "ratingPrompt"
    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(parent ? parent.width * 0.8 : 300, 320)
    modal: true
    closePolicy: Popup.CloseOnEscape
    title: qsTr("Rate Tolvane")

    onOpened: answered = false
    onClosed: {
        if (!answered)
            RatingPrompt.later()
    }

    Label {
        width: parent.width
        text: qsTr("If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!")
        wrapMode: Text.Wrap
    }

    footer: Column {
        padding: 12
        spacing: 6

        Button {
            objectName: "ratingRate"
            width: dialog.availableWidth
            text: qsTr("Rate")
            highlighted: true
            onClicked: dialog.answer(() => RatingPrompt.rate())
        }
        Button {
            objectName: "ratingLater"
            width: dialog.availableWidth
            text: qsTr("Later")
            onClicked: dialog.answer(() => RatingPrompt.later())
        }
        Button {
            objectName: "ratingDecline"
            width: dialog.availableWidth
            text: qsTr("No thanks")
            onClicked: dialog.answer(() => RatingPrompt.decline())
        }
    }
}
