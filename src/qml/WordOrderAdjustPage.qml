import QtQuick
import QtQuick.Controls
import Tolvane

// "Reorder Words": the words of a phrase stand shuffled in the work area; the learner drags
// them into order and submits. When the last answer is in or the time is up, the question
// controls give way to the results. On the desktop Tab reaches a word, the arrow keys move it
// and Return submits.
BasePage {
    id: page

    // Set by the quiz menu: the category quizzed ("" for all phrases), the title of the menu
    // button, the time limit in seconds and the number of questions.
    property string categoryId
    property string titleText: qsTr("Reorder Words")
    property real limitedTime: Preferences.testDuration
    property int itemsCount: 10

    readonly property real sideMargin: controller.outerMargin * LayoutMetrics.scaleX
    readonly property bool asking: controller.hasQuestions && !controller.finished

    title: controller.titleText

    Component.onCompleted: {
        controller.setupQuiz(itemsCount, titleText, categoryId, limitedTime)
        controller.viewDidLoad()
    }
    StackView.onDeactivating: controller.viewWillDisappear()

    Keys.onReturnPressed: event => page.submit(event)
    Keys.onEnterPressed: event => page.submit(event)

    function submit(event) {
        event.accepted = asking
        if (asking)
            controller.submitAction()
    }

    WordOrderAdjustVC {
        id: controller
    }

    QuizInfoView {
        id: quizInfoView
        objectName: "quizInfoView"
        x: page.sideMargin
        y: controller.outerMargin * LayoutMetrics.scaleY
        width: parent.width - 2 * x
        quiz: controller
        textScale: page.textScale
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
        anchors.topMargin: 16 * LayoutMetrics.scaleY
        x: page.sideMargin
        width: parent.width - 2 * x
        spacing: 12 * LayoutMetrics.scaleY

        Label {
            id: tipLbl
            objectName: "tipLbl"
            width: parent.width
            text: qsTr("Drag the word to reorder it.")
            color: AppColors.secondaryText
            font.pixelSize: 15 * page.textScale
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        Rectangle {
            width: parent.width
            height: 220 * LayoutMetrics.scaleY
            radius: 4
            color: "white"
            border.color: controller.seperatedColor

            WordOrderBoardView {
                id: wordOrderAdjustView
                objectName: "wordOrderAdjustView"
                anchors.fill: parent
                anchors.margins: 1
                board: controller.wordOrderAdjustView
            }
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
    }
}
