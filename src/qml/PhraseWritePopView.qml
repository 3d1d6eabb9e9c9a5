import QtQuick
import QtQuick.Controls
import Tolvane

// The writing pop-up of the phrase cards: the learner types the phrase, submits it with the
// button or Return, and sees the phrase under the input, which turns green on a match and red
// otherwise. Redo clears the input for another try. Every opening starts a fresh attempt.
VoPopView {
    id: popUp

    // The phrase to write, in German.
    property alias wordText: check.wordText
    readonly property real bodyH: 68
    readonly property real gap: 8

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: 0.9 * LayoutMetrics.screenWidth
    height: headH + bodyH
    title: qsTr("Write what you hear")

    onAboutToShow: check.redo()
    onOpened: textField.forceActiveFocus()

    // A dark grey shadow offset by (3, 3); its rounded corners stand for the slight blur.
    background: Item {
        Rectangle {
            x: 3
            y: 3
            width: parent.width
            height: parent.height
            radius: 2
            color: Qt.rgba(1 / 3, 1 / 3, 1 / 3, 1)
        }
        Rectangle {
            anchors.fill: parent
            color: "white"
        }
    }

    PhraseWriteController {
        id: check
    }

    TextField {
        id: textField
        objectName: "writeInput"
        anchors.left: parent.left
        anchors.leftMargin: popUp.gap
        y: 4
        width: parent.width - submitBtn.width - 3 * popUp.gap
        height: 32
        font.pixelSize: 16
        text: check.input
        color: check.inputColor
        enabled: !check.submitted
        placeholderText: qsTr("Type the phrase")
        onTextEdited: check.input = text
        onAccepted: check.submit()
    }

    Button {
        id: submitBtn
        objectName: "submitButton"
        anchors.right: parent.right
        anchors.rightMargin: popUp.gap
        y: 4
        height: 32
        text: qsTr("Submit")
        enabled: !check.submitted
        focusPolicy: Qt.NoFocus
        onClicked: check.submit()
    }

    VoLabel {
        id: wordLbl
        objectName: "wordLabel"
        anchors.left: parent.left
        anchors.leftMargin: popUp.gap
        y: 40
        width: textField.width
        height: 26
        visible: check.submitted
        text: check.wordText
        font.pixelSize: 16
        font.bold: true
        wrapMode: Text.NoWrap
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 9
        elide: Text.ElideRight
        color: AppColors.text
    }

    Button {
        id: redoBtn
        objectName: "redoButton"
        anchors.right: parent.right
        anchors.rightMargin: popUp.gap
        y: 38
        height: 28
        visible: check.submitted
        text: qsTr("Redo")
        focusPolicy: Qt.NoFocus
        onClicked: {
            check.redo()
            textField.forceActiveFocus()
        }
    }
}
