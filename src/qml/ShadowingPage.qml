import QtQuick
import QtQuick.Controls
import Tolvane

// Hands-free shadowing: the phrase plays, the learner says it after the model, the mark and the
// coloured words show for a moment, and the next phrase follows. A tap anywhere or Space pauses
// and resumes.
BasePage {
    id: page

    // Set by the screen that opens it.
    property string categoryId
    property int phraseIndex

    readonly property var comparison: controller.recording.comparison
    readonly property bool showingMark: controller.stage === ShadowingVC.Showing && comparison !== null

    title: qsTr("Shadow")

    Component.onCompleted: {
        if (!controller.start(categoryId, phraseIndex))
            microphoneAlert.open()
    }
    StackView.onDeactivating: controller.stop()

    ShadowingVC {
        id: controller
    }

    MicrophoneAlert {
        id: microphoneAlert
        objectName: "microphoneAlert"
        permission: controller.permission
        onClosed: page.back()
    }

    Keys.onSpacePressed: controller.togglePause()

    MouseArea {
        objectName: "pauseArea"
        anchors.fill: parent
        onClicked: controller.togglePause()
    }

    Column {
        id: column
        x: page.margin
        y: 2 * page.margin
        width: parent.width - 2 * page.margin
        spacing: 14 * LayoutMetrics.scaleY

        VoLabel {
            objectName: "shadowProgress"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("%1 of %2").arg((controller.currentIndex + 1).toLocaleString(Qt.locale(UiLanguage.localeName), "f", 0))
                                  .arg(controller.phraseCount.toLocaleString(Qt.locale(UiLanguage.localeName), "f", 0))
            font.pixelSize: 14 * page.textScale
            color: AppColors.secondaryText
        }
        VoLabel {
            objectName: "shadowPhrase"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            textFormat: page.showingMark ? Text.StyledText : Text.PlainText
            text: page.showingMark ? page.comparison.wordsText : controller.phraseText
            font.pixelSize: 26 * page.textScale
            font.bold: true
            color: AppColors.text
        }
        VoLabel {
            objectName: "shadowTranslation"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: controller.translation
            font.pixelSize: 17 * page.textScale
            color: AppColors.secondaryText
        }
        VoLabel {
            objectName: "shadowMark"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: page.showingMark
            textFormat: Text.StyledText
            text: page.showingMark ? page.comparison.scoreStyledText : ""
            font.pixelSize: 22 * page.textScale
        }
        VoLabel {
            objectName: "shadowTip"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: page.showingMark && text !== ""
            text: page.showingMark ? page.comparison.tipText : ""
            font.pixelSize: 14 * page.textScale
            color: AppColors.secondaryText
        }
        VoLabel {
            objectName: "shadowStage"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: controller.stageText
            font.pixelSize: 20 * page.textScale
            font.bold: true
            color: AppColors.barBlue
        }
        VoLevelMeter {
            objectName: "shadowLevel"
            width: parent.width * 0.6
            anchors.horizontalCenter: parent.horizontalCenter
            visible: controller.stage === ShadowingVC.Speaking && !controller.paused
            level: controller.recording.level
        }
        VoLabel {
            objectName: "shadowError"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: text !== ""
            text: controller.recording.errorText
            color: AppColors.experience
        }
    }

    Button {
        objectName: "pauseButton"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 3 * page.margin
        visible: controller.stage !== ShadowingVC.Finished
        focusPolicy: Qt.NoFocus
        text: controller.paused ? qsTr("Resume") : qsTr("Pause")
        font.pixelSize: 17 * page.textScale
        onClicked: controller.togglePause()
    }
}
