import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tolvane

// The model speaker's recording of a phrase above the learner's, each as a spectrum with its
// own player bar, then the learner's score, the phrase with its words coloured by how they were
// heard and a tip for the weakest, the phrase's translation and, when the comparison could not
// be made, why. The opener fills the comparison, sets the size and opens the pop-up;
// closing it, by the button or Escape, stops both players.
VoPopView {
    id: popUp

    property SpectrumCompView comparison
    readonly property real gap: 8

    parent: Overlay.overlay
    x: parent ? (parent.width - width) / 2 : 0
    y: parent ? (parent.height - height) / 2 : 0
    width: parent ? 0.9 * parent.width : 0
    height: parent ? 0.8 * parent.height : 0

    onClosed: if (comparison)
                  comparison.closeAction()

    // Built only while there is a comparison to show: its panels need one.
    Loader {
        anchors.fill: parent
        anchors.margins: popUp.gap
        active: !!popUp.comparison

        sourceComponent: ColumnLayout {
            spacing: 4

            Label {
                objectName: "originalVoiceLbl"
                text: qsTr("Original Voice")
                font.bold: true
                color: AppColors.text
            }

            VoSpectrumPanelView {
                objectName: "standardSpectrumPanel"
                Layout.fillWidth: true
                // Shrinks on a short screen; never grows past its own strip and bar.
                Layout.fillHeight: true
                Layout.preferredHeight: implicitHeight
                Layout.maximumHeight: implicitHeight
                panel: popUp.comparison.standardSpectrumPanel
            }

            Label {
                objectName: "myVoiceLbl"
                text: qsTr("My Voice")
                font.bold: true
                color: AppColors.text
            }

            VoSpectrumPanelView {
                objectName: "estimatedSpectrumPanel"
                Layout.fillWidth: true
                // Shrinks on a short screen; never grows past its own strip and bar.
                Layout.fillHeight: true
                Layout.preferredHeight: implicitHeight
                Layout.maximumHeight: implicitHeight
                panel: popUp.comparison.estimatedSpectrumPanel
            }

            VoLabel {
                objectName: "testedWordScoreLbl"
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                textFormat: Text.RichText
                font.pixelSize: 18
                color: AppColors.text
                visible: popUp.comparison.testedWordScoreVisible
                         && popUp.comparison.scored
                text: popUp.comparison.scoreStyledText
            }

            // The phrase with each word in the colour of how it was heard, and what to work on.
            VoLabel {
                objectName: "wordsLbl"
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                textFormat: Text.StyledText
                font.pixelSize: 18
                font.bold: true
                visible: text !== ""
                text: popUp.comparison.wordsText
                Accessible.name: popUp.comparison.wordsAccessibleText
            }

            VoLabel {
                objectName: "readingTipLbl"
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: 14
                color: AppColors.secondaryText
                visible: text !== ""
                text: popUp.comparison.tipText
            }

            VoLabel {
                objectName: "translateLbl"
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                font.pixelSize: 16
                color: AppColors.secondaryText
                text: popUp.comparison.translateText
            }

            VoLabel {
                objectName: "errorLbl"
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignHCenter
                color: AppColors.experience
                visible: text !== ""
                text: popUp.comparison.errorText
            }

            Item {
                Layout.fillHeight: true
            }
        }
    }

    BusyIndicator {
        objectName: "comparisonBusy"
        anchors.centerIn: parent
        running: !!popUp.comparison && popUp.comparison.busy
        visible: running
    }
}
