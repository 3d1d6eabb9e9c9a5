import QtQuick
import QtQuick.Controls
import Tolvane

// One question of a finished speaking quiz: the phrase, its words coloured by how the reading
// was heard, its translation and the mark the learner's reading earned, with "Show Voiceprint" to see that reading's comparison again.
CommonResultCellView {
    id: cell

    property bool voiceprintShown: true
    // The phrase with its words coloured by the reading's check, and the verdicts in words.
    property string wordsText
    property string wordsAccessibleText

    srcShownText: wordsText !== "" ? wordsText : srcText
    srcAccessibleName: wordsAccessibleText !== "" ? wordsAccessibleText : srcText

    signal showSpectrums()

    testTextRightInset: voiceprintButton.visible ? voiceprintButton.width + 4 : 0

    Button {
        id: voiceprintButton
        objectName: "showVoiceprintButton"
        visible: cell.voiceprintShown
        anchors.right: parent.right
        anchors.rightMargin: 4
        y: 2 * cell.height / 3 + (cell.height / 3 - height) / 2
        height: Math.max(cell.height / 3 - 4, 1)
        flat: true
        focusPolicy: Qt.NoFocus
        text: qsTr("Show Voiceprint")
        font.pixelSize: Math.max(height * 0.55, 6)
        contentItem: Label {
            text: voiceprintButton.text
            font: voiceprintButton.font
            color: Qt.rgba(0.0, 0.478, 1.0, 1)
            verticalAlignment: Text.AlignVCenter
        }
        onClicked: cell.showSpectrums()
    }
}
