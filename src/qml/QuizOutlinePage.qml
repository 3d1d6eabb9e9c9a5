import QtQuick
import QtQuick.Controls
import Tolvane

// The quiz menu: one button per quiz kind over a blue-to-green gradient. A button opens its quiz
// out of the point that was pressed; Up and Down move between the buttons and Return starts one.
BasePage {
    id: page

    property alias categoryId: controller.categoryId

    function start(button, point) {
        const quiz = controller.quizClicked(button.tag)
        if (quiz.page === undefined)
            return
        open(Qt.resolvedUrl(quiz.page), quiz.properties, button.mapToItem(page, point))
    }

    title: controller.titleText

    QuizOutlineVC {
        id: controller
    }

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.rgba(39 / 255, 64 / 255, 139 / 255, 1) }
            GradientStop { position: 1; color: Qt.rgba(46 / 255, 139 / 255, 87 / 255, 1) }
        }
    }

    Column {
        id: menu

        readonly property real buttonHeight: controller.buttonHeight(parent.height)

        y: buttonHeight / 2
        width: parent.width
        spacing: buttonHeight / 4
        focus: true

        Repeater {
            id: buttons
            model: controller.buttons

            delegate: Button {
                id: button

                required property var modelData
                required property int index
                readonly property int tag: modelData.tag

                objectName: "quizButton" + tag
                x: (menu.width - width) / 2
                width: menu.width * 0.9
                height: menu.buttonHeight
                focus: index === 0
                text: modelData.title
                font.pixelSize: 20 * page.textScale
                font.bold: true

                KeyNavigation.down: buttons.itemAt(index + 1)
                KeyNavigation.up: buttons.itemAt(index - 1)
                Keys.onReturnPressed: page.start(button, Qt.point(width / 2, height / 2))
                Keys.onEnterPressed: page.start(button, Qt.point(width / 2, height / 2))
                onClicked: page.start(button, Qt.point(pressX, pressY))

                contentItem: VoLabel {
                    text: button.text
                    font: button.font
                    color: "white"
                    horizontalAlignment: Text.AlignHCenter
                }
                background: Rectangle {
                    radius: 8 * LayoutMetrics.scaleX
                    color: Qt.rgba(108 / 255, 84 / 255, 205 / 255, 0.8)
                    border.color: "white"
                    border.width: button.activeFocus ? 2 : 0
                    opacity: button.down ? 0.7 : 1
                }
            }
        }
    }
}
