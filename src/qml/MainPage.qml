import QtQuick
import QtQuick.Controls
import Tolvane

// The main screen: the learner's experience total above the course's categories. A category
// opens out of the row that was tapped, or out of the current row on Return.
BasePage {
    id: page

    function openCategory(row, point) {
        list.currentIndex = row.index
        open(categoryPage, { categoryId: row.categoryId }, row.mapToItem(page, point))
    }

    // Opens a screen out of the centre of the tool bar button that asked for it.
    function openFrom(button, component) {
        open(component, {}, button.mapToItem(page, Qt.point(button.width / 2, button.height / 2)))
    }

    title: qsTr("Tolvane")
    // The user info button sits just left of the tool bar's one right-hand slot.
    rightButton: toolButtons

    // Coming back from a screen that earned points shows the new total.
    StackView.onActivated: controller.refresh()

    MainViewController {
        id: controller
    }

    Component {
        id: categoryPage
        CategoryPage {}
    }
    Component {
        id: settingPage
        SettingPage {}
    }
    Component {
        id: userInfoPage
        UserInfoPage {}
    }
    Component {
        id: quizMenu
        QuizOutlinePage {}
    }

    Component {
        id: toolButtons
        Item {
            IconButton {
                id: userInfoButton
                objectName: "userInfoButton"
                anchors.right: parent.left
                width: parent.width
                height: parent.height
                icon.source: "icons/btn_userinfo.svg"
                Accessible.name: qsTr("User Info")
                onClicked: page.openFrom(userInfoButton, userInfoPage)
            }
            IconButton {
                id: settingButton
                objectName: "settingButton"
                width: parent.width
                height: parent.height
                icon.source: "icons/btn_setting.svg"
                Accessible.name: qsTr("Settings")
                onClicked: page.openFrom(settingButton, settingPage)
            }
        }
    }

    // Desktop keys for the two tool bar buttons, while the main screen is the one shown.
    Shortcut {
        sequence: "Ctrl+,"
        enabled: page.StackView.status === StackView.Active
        onActivated: page.open(settingPage, {}, Qt.point(page.width, 0))
    }
    Shortcut {
        sequence: "Ctrl+T"
        enabled: page.StackView.status === StackView.Active
        onActivated: page.open(quizMenu, {}, Qt.point(page.width / 2, 0))
    }
    Shortcut {
        sequence: "Ctrl+I"
        enabled: page.StackView.status === StackView.Active
        onActivated: page.open(userInfoPage, {}, Qt.point(page.width, 0))
    }

    ListView {
        id: list
        objectName: "categoryList"

        // The current row is marked only once the keyboard moves it; before that it would look
        // like a selection nobody made.
        property bool steeredByKeys: false

        function openCurrent() {
            if (currentItem)
                page.openCategory(currentItem, Qt.point(currentItem.width / 2, currentItem.height / 2))
        }

        anchors.fill: parent
        focus: true
        clip: true
        model: controller.categories
        ScrollIndicator.vertical: ScrollIndicator {}

        Keys.onPressed: event => {
            steeredByKeys = true
            event.accepted = false
        }
        Keys.onReturnPressed: openCurrent()
        Keys.onEnterPressed: openCurrent()

        header: Column {
            width: ListView.view.width
            topPadding: page.margin
            spacing: page.margin

            Rectangle {
                x: page.margin
                width: parent.width - 2 * page.margin
                height: 64 * LayoutMetrics.scaleY
                radius: 8 * LayoutMetrics.scaleX
                color: "white"

                VoLabel {
                    anchors.left: parent.left
                    anchors.leftMargin: page.margin
                    anchors.right: total.left
                    height: parent.height
                    text: qsTr("Experience")
                    font.pixelSize: 17 * page.textScale
                    font.bold: true
                }
                VoLabel {
                    id: total
                    objectName: "experienceTotal"
                    anchors.right: parent.right
                    anchors.rightMargin: page.margin
                    height: parent.height
                    text: controller.experienceTotal.toLocaleString(Qt.locale(UiLanguage.localeName), "f", 0)
                    font.pixelSize: 30 * page.textScale
                    font.bold: true
                    color: AppColors.experience
                    wrapMode: Text.NoWrap
                }
            }

            // Said once, on the start that healed a damaged record.
            Rectangle {
                objectName: "recordNotice"
                visible: controller.recordNotice !== ""
                x: page.margin
                width: parent.width - 2 * page.margin
                height: visible ? noticeText.implicitHeight + 2 * page.margin : 0
                radius: 8 * LayoutMetrics.scaleX
                color: "#fff4d6"
                Accessible.role: Accessible.AlertMessage
                Accessible.name: controller.recordNotice

                VoLabel {
                    id: noticeText
                    objectName: "recordNoticeText"
                    anchors.left: parent.left
                    anchors.right: dismiss.left
                    anchors.margins: page.margin
                    anchors.verticalCenter: parent.verticalCenter
                    text: controller.recordNotice
                    font.pixelSize: 14 * page.textScale
                    color: AppColors.text
                }
                Button {
                    id: dismiss
                    objectName: "recordNoticeDismiss"
                    anchors.right: parent.right
                    anchors.rightMargin: page.margin / 2
                    anchors.verticalCenter: parent.verticalCenter
                    text: qsTr("OK")
                    onClicked: controller.dismissRecordNotice()
                }
            }

            Button {
                id: quizzesButton
                objectName: "quizzesButton"
                x: page.margin
                width: parent.width - 2 * page.margin
                height: 48 * LayoutMetrics.scaleY
                focusPolicy: Qt.NoFocus
                text: qsTr("Quizzes")
                font.pixelSize: 17 * page.textScale
                font.bold: true
                onClicked: page.open(quizMenu, {}, quizzesButton.mapToItem(page, Qt.point(pressX, pressY)))

                contentItem: VoLabel {
                    text: quizzesButton.text
                    font: quizzesButton.font
                    color: "white"
                    horizontalAlignment: Text.AlignHCenter
                }
                background: Rectangle {
                    radius: 8 * LayoutMetrics.scaleX
                    color: Qt.rgba(108 / 255, 84 / 255, 205 / 255, quizzesButton.down ? 0.7 : 1)
                }
            }

            Label {
                x: page.margin
                bottomPadding: 4 * LayoutMetrics.scaleY
                text: qsTr("Categories")
                font.pixelSize: 13 * page.textScale
                font.capitalization: Font.AllUppercase
                color: AppColors.secondaryText
            }
        }

        delegate: ItemDelegate {
            id: row

            required property int index
            required property string categoryId
            required property string name
            required property string germanName
            required property int phraseCount

            objectName: "categoryRow"
            width: ListView.view.width
            leftPadding: page.margin
            rightPadding: page.margin
            topPadding: 10 * LayoutMetrics.scaleY
            bottomPadding: 10 * LayoutMetrics.scaleY
            focusPolicy: Qt.NoFocus
            Accessible.name: name

            onClicked: page.openCategory(row, Qt.point(pressX, pressY))

            background: RowBackground {
                separatorInset: page.margin
                tint: row.down ? 0.16 : (row.ListView.isCurrentItem && list.steeredByKeys && list.activeFocus ? 0.07 : 0)
            }

            contentItem: Column {
                spacing: 3 * LayoutMetrics.scaleY

                VoLabel {
                    objectName: "categoryName"
                    width: parent.width
                    text: row.name
                    font.pixelSize: 17 * page.textScale
                    color: AppColors.text
                }
                Item {
                    width: parent.width
                    height: Math.max(german.height, count.height)

                    VoLabel {
                        id: german
                        anchors.left: parent.left
                        width: parent.width - count.width - page.margin
                        horizontalAlignment: Text.AlignLeft
                        text: row.germanName
                        font.pixelSize: 13 * page.textScale
                        color: AppColors.secondaryText
                    }
                    VoLabel {
                        id: count
                        anchors.right: parent.right
                        text: qsTr("%n phrases", "", row.phraseCount)
                        font.pixelSize: 13 * page.textScale
                        color: AppColors.secondaryText
                        wrapMode: Text.NoWrap
                    }
                }
            }
        }
    }
}
