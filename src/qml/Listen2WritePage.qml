import QtQuick
import QtQuick.Controls
import Tolvane

// "Listen And Write": the phrase is heard shortly after each question appears; the learner
// types it and submits with the button or Return, and the field keeps the keyboard for the next
// question. A tap outside the controls puts the keyboard away. When the last answer is in or
// the time is up, the question controls give way to the results. On the desktop Ctrl+P plays
// the phrase again (Space is for typing).
BasePage {
    id: page

    // Set by the quiz menu: the category quizzed ("" for all phrases), the title of the menu
    // button, the time limit in seconds and the number of questions.
    property string categoryId
    property string titleText: qsTr("Listen And Write")
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

    // The keyboard goes with the field's focus.
    function dismissKeyboard() {
        keys.forceActiveFocus()
    }

    function submit(event) {
        event.accepted = asking
        if (asking)
            controller.submitAction()
    }

    Listen2WriteVC {
        id: controller

        onTextFieldFocusRequested: textField.forceActiveFocus()
        onFinishedChanged: if (controller.finished) page.dismissKeyboard()
    }

    Shortcut {
        sequence: "Ctrl+P"
        enabled: page.asking
        onActivated: controller.playAction()
    }

    // Takes the focus while the keyboard is put away, so that Return still submits.
    Item {
        id: keys
        anchors.fill: parent

        Keys.onReturnPressed: event => page.submit(event)
        Keys.onEnterPressed: event => page.submit(event)
    }

    MouseArea {
        anchors.fill: parent
        enabled: page.asking
        onClicked: page.dismissKeyboard()
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
        anchors.topMargin: 20 * LayoutMetrics.scaleY
        x: page.sideMargin
        width: parent.width - 2 * x
        spacing: 16 * LayoutMetrics.scaleY

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

        TextField {
            id: textField
            objectName: "textField"
            width: parent.width
            height: 44 * LayoutMetrics.scaleY
            focus: true
            text: controller.textField
            color: controller.currTextColor
            font.pixelSize: controller.fontSize * page.textScale
            placeholderText: qsTr("Type what you hear")
            // The answer is compared as typed: nothing may change it behind the learner's back.
            inputMethodHints: Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
            background: Rectangle {
                color: "white"
                border.color: textField.activeFocus ? AppColors.barBlue : controller.seperatedColor
                border.width: 1
                radius: 4
            }
            onTextEdited: controller.textField = text
            onAccepted: controller.submitAction()
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
