pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Tolvane

// "Listen And Select": the phrase is heard shortly after its four German options appear; the
// learner marks one and submits. When the last answer is in or the time is up, the question
// controls give way to the results. On the desktop 1 to 4 mark an option, Return submits and
// Space plays the phrase again.
BasePage {
    id: page

    // Set by the quiz menu: the category quizzed ("" for all phrases), the title of the menu
    // button, the time limit in seconds and the number of questions.
    property string categoryId
    property string titleText: qsTr("Listen And Select")
    property real limitedTime: Preferences.testDuration
    property int itemsCount: 10

    readonly property real sideMargin: controller.outerMargin * LayoutMetrics.scaleX

    title: controller.titleText

    Component.onCompleted: {
        controller.setupQuiz(itemsCount, titleText, categoryId, limitedTime)
        controller.viewDidLoad()
    }
    StackView.onDeactivating: controller.viewWillDisappear()

    Listen2SelectVC {
        id: controller
    }

    Item {
        id: keys
        anchors.fill: parent
        focus: true

        Keys.onPressed: event => {
            const asking = controller.hasQuestions && !controller.finished
            if (event.modifiers !== Qt.NoModifier && event.modifiers !== Qt.KeypadModifier || !asking) {
                event.accepted = false
            } else if (event.key >= Qt.Key_1 && event.key <= Qt.Key_4) {
                controller.selectOption(event.key - Qt.Key_1)
            } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
                controller.submitAction()
            } else if (event.key === Qt.Key_Space) {
                controller.playAction()
            } else {
                event.accepted = false
            }
        }
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
        visible: controller.hasQuestions && !controller.finished
        anchors.top: quizInfoView.bottom
        anchors.topMargin: 10 * LayoutMetrics.scaleY
        x: page.sideMargin
        width: parent.width - 2 * x
        spacing: 10 * LayoutMetrics.scaleY

        IconButton {
            id: loudspeakerButton
            objectName: "loudspeakerButton"
            anchors.horizontalCenter: parent.horizontalCenter
            width: 50 * page.textScale
            height: width
            icon.source: "icons/btn-loudspeaker.svg"
            Accessible.name: qsTr("Play the phrase")
            onClicked: controller.playAction()
        }

        Column {
            id: optionArea
            width: parent.width
            spacing: 8 * LayoutMetrics.scaleY

            // Four buttons for the life of the screen; a new question only changes their texts.
            Repeater {
                model: 4

                OptionTxtBtn {
                    required property int index

                    objectName: "option" + index
                    tag: index
                    width: optionArea.width
                    height: 64 * LayoutMetrics.scaleY
                    text: controller.optionTexts[index] ?? ""
                    textSize: controller.fontSize * page.textScale
                    selected: controller.selectedOption === index
                    bgColor: controller.optionBgColor
                    selectedBgColor: controller.selectedOptionBgColor
                    onClicked: controller.selectOption(tag)
                }
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
