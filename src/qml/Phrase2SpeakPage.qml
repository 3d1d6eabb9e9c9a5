pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Tolvane

// "Read Phrase": the learner holds the microphone (or Space) while reading the phrase aloud and
// releases it to see the comparison with the model recording; Submit takes the mark and moves
// on. Only progress is shown while asking. The results can show each reading's comparison again.
BasePage {
    id: page

    // Set by the quiz menu: the category quizzed ("" for all phrases), the title of the menu
    // button, the time limit in seconds and the number of questions.
    property string categoryId
    property string titleText: qsTr("Read Phrase")
    property real limitedTime: Preferences.testDuration
    property int itemsCount: 10

    readonly property real sideMargin: controller.outerMargin * LayoutMetrics.scaleX
    readonly property bool asking: controller.hasQuestions && !controller.finished

    title: controller.titleText

    Component.onCompleted: {
        controller.setupQuiz(itemsCount, titleText, categoryId, limitedTime)
        if (controller.checkMicrophone())
            microphoneAlert.open()
        controller.viewDidLoad()
        keys.forceActiveFocus()
    }
    StackView.onDeactivating: {
        comparisonPopup.close()
        controller.viewWillDisappear()
    }

    Phrase2SpeakVC {
        id: controller

        onComparisonShown: comparisonPopup.open()
        onFinishedChanged: if (controller.finished) comparisonPopup.close()
    }

    MicrophoneAlert {
        id: microphoneAlert
        objectName: "microphoneAlert"
        permission: controller.permission
    }

    SpectrumCompViewPopup {
        id: comparisonPopup
        objectName: "comparisonPopup"
        comparison: controller.spectrumCompView
        parent: Overlay.overlay
        x: (parent.width - width) / 2
        y: (parent.height - height) / 2
        width: 0.9 * parent.width
        height: 0.8 * parent.height
        onClosed: keys.forceActiveFocus()
    }

    // Space holds the microphone like the mouse does.
    Item {
        id: keys
        anchors.fill: parent
        focus: true

        Keys.onPressed: event => event.accepted = page.asking && microphoneButton.handleKey(event, true)
        Keys.onReleased: event => event.accepted = page.asking && microphoneButton.handleKey(event, false)
    }

    QuizInfoView {
        id: quizInfoView
        objectName: "quizInfoView"
        x: page.sideMargin
        y: controller.outerMargin * LayoutMetrics.scaleY
        width: parent.width - 2 * x
        quiz: controller
        textScale: page.textScale
        scoreVisible: false
    }

    Label {
        objectName: "emptyText"
        visible: !controller.hasQuestions
        anchors.top: quizInfoView.bottom
        anchors.bottom: parent.bottom
        x: page.sideMargin
        width: parent.width - 2 * x
        text: controller.emptyText
        color: AppColors.text
        font.pixelSize: 17 * page.textScale
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    Column {
        id: question
        visible: page.asking
        anchors.top: quizInfoView.bottom
        anchors.topMargin: 20 * LayoutMetrics.scaleY
        x: page.sideMargin
        width: parent.width - 2 * x
        spacing: 16 * LayoutMetrics.scaleY

        Label {
            objectName: "questionLbl"
            width: parent.width
            text: controller.currText
            color: AppColors.text
            font.pixelSize: controller.fontSize * page.textScale
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }

        RecordButton {
            id: microphoneButton
            objectName: "microphoneButton"
            anchors.horizontalCenter: parent.horizontalCenter
            width: 72 * page.textScale
            height: width
            onHoldStarted: controller.beginRecordAction()
            onHoldEnded: controller.endRecordAction()
        }

        Label {
            objectName: "tipLbl"
            visible: text !== ""
            width: parent.width
            text: controller.tipText
            color: AppColors.secondaryText
            font.pixelSize: 15 * page.textScale
            horizontalAlignment: Text.AlignHCenter
        }

        VoLevelMeter {
            objectName: "levelMeter"
            visible: controller.recording.recording
            anchors.horizontalCenter: parent.horizontalCenter
            width: 0.6 * parent.width
            height: 8 * LayoutMetrics.scaleY
            level: controller.recording.level
        }

        Label {
            objectName: "recordingErrorLbl"
            visible: text !== ""
            width: parent.width
            text: controller.recording.errorText
            color: AppColors.experience
            font.pixelSize: 15 * page.textScale
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }

        Button {
            id: submitBtn
            objectName: "submitBtn"
            anchors.horizontalCenter: parent.horizontalCenter
            width: 0.5 * parent.width
            height: 44 * LayoutMetrics.scaleY
            text: qsTr("Submit")
            font.pixelSize: 18 * page.textScale
            focusPolicy: Qt.NoFocus
            // Waits for the mark of the reading just made.
            enabled: !microphoneButton.held && !controller.markPending
            onClicked: controller.submitAction()
        }
    }

    QuizResultTable {
        objectName: "resultTable"
        visible: controller.finished
        x: quizInfoView.x
        anchors.top: quizInfoView.bottom
        anchors.topMargin: controller.outerMargin * LayoutMetrics.scaleY
        anchors.bottom: parent.bottom
        width: parent.width - 2 * x
        quiz: controller

        delegate: Phrase2SpeakResultCellView {
            required property int index
            required srcText
            required rightText
            required rightTextShown
            required property color rowColor

            objectName: "resultRow"
            width: ListView.view.width
            height: controller.resultRowH * LayoutMetrics.scaleY
            color: rowColor
            separatorColor: controller.seperatedColor
            testText: controller.markText(index)
            testTextColor: AppColors.text
            voiceprintShown: controller.hasVoiceprint(index)
            wordsText: controller.wordsText(index)
            wordsAccessibleText: controller.wordsAccessibleText(index)
            onTapped: controller.playClickedItem(index)
            onShowSpectrums: controller.showSpectrums(index)
        }
    }
}
