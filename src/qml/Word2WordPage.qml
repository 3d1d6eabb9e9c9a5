pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Tolvane

// The translation quizzes: a phrase in one language above four translations in the other; the
// learner marks one and submits. foreign2Mother asks the German phrase and offers mother-language
// texts; otherwise the other way round. Long texts make the question scroll. When the last answer
// is in or the time is up, the results take its place, read in the quiz's direction. On the
// desktop 1 to 4 mark an option and Return submits.
BasePage {
    id: page

    // Set by the quiz menu: the category quizzed ("" for all phrases), the title of the menu
    // button, the time limit in seconds, the direction and the number of questions.
    property string categoryId
    property string titleText: foreign2Mother ? qsTr("Foreign Language -> Mother Language")
                                              : qsTr("Mother Language -> Foreign Language")
    property real limitedTime: Preferences.testDuration
    property bool foreign2Mother
    property int itemsCount: 10

    readonly property real sideMargin: controller.outerMargin * LayoutMetrics.scaleX

    title: controller.titleText

    Component.onCompleted: {
        controller.setupQuiz(itemsCount, titleText, categoryId, limitedTime)
        controller.viewDidLoad()
    }
    StackView.onDeactivating: controller.viewWillDisappear()

    Word2WordVC {
        id: controller
        foreign2Mother: page.foreign2Mother
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

    Flickable {
        id: scroller
        objectName: "questionScroller"
        visible: controller.hasQuestions && !controller.finished
        anchors.top: quizInfoView.bottom
        anchors.bottom: parent.bottom
        x: page.sideMargin
        width: parent.width - 2 * x
        clip: true
        contentWidth: width
        contentHeight: question.height + 2 * question.y
        boundsBehavior: Flickable.StopAtBounds
        ScrollIndicator.vertical: ScrollIndicator {}

        Column {
            id: question
            y: 10 * LayoutMetrics.scaleY
            width: scroller.width
            spacing: 10 * LayoutMetrics.scaleY

            Label {
                id: currText
                objectName: "currText"
                width: parent.width
                height: 72 * LayoutMetrics.scaleY
                text: controller.currText
                color: controller.currTextColor
                font.pixelSize: 22 * page.textScale
                font.bold: true
                fontSizeMode: Text.Fit
                minimumPixelSize: 9
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
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
