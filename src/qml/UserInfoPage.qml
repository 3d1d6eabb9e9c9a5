import QtQuick
import QtQuick.Controls
import Tolvane

// The learner's experience points and how they were earned: the total, then one row per kind
// of study with its weight and count.
BasePage {
    id: page

    title: qsTr("User Info")

    UserInfoVC {
        id: controller
    }

    ListView {
        objectName: "userInfoList"
        anchors.fill: parent
        clip: true
        model: controller.detailRows
        ScrollIndicator.vertical: ScrollIndicator {}

        header: Column {
            width: ListView.view.width
            topPadding: page.margin

            Rectangle {
                x: page.margin
                width: parent.width - 2 * page.margin
                height: controller.expRowH * LayoutMetrics.scaleY
                radius: 8 * LayoutMetrics.scaleX
                color: "white"

                VoLabel {
                    anchors.left: parent.left
                    anchors.leftMargin: page.margin
                    height: parent.height
                    text: qsTr("Experience")
                    font.pixelSize: 17 * page.textScale
                    font.bold: true
                    color: AppColors.text
                }
                VoLabel {
                    objectName: "userInfoTotal"
                    anchors.right: parent.right
                    anchors.rightMargin: page.margin
                    height: parent.height
                    text: controller.totalText
                    font.pixelSize: 34 * page.textScale
                    font.bold: true
                    color: AppColors.experience
                    wrapMode: Text.NoWrap
                }
            }
            Label {
                x: page.margin
                topPadding: 16 * LayoutMetrics.scaleY
                bottomPadding: 4 * LayoutMetrics.scaleY
                text: qsTr("How it was earned")
                font.pixelSize: 13 * page.textScale
                font.capitalization: Font.AllUppercase
                color: AppColors.secondaryText
            }
        }

        delegate: RowBackground {
            required property var modelData

            objectName: "userInfoRow"
            width: ListView.view.width
            height: controller.infoRowH * LayoutMetrics.scaleY
            separatorInset: page.margin

            VoLabel {
                objectName: "userInfoRowTitle"
                x: page.margin
                width: parent.width - detail.width - 3 * page.margin
                height: parent.height
                text: modelData.title
                font.pixelSize: 17 * page.textScale
                color: AppColors.text
            }
            VoLabel {
                id: detail
                objectName: "userInfoRowDetail"
                anchors.right: parent.right
                anchors.rightMargin: page.margin
                height: parent.height
                text: modelData.detail
                font.pixelSize: 17 * page.textScale
                color: AppColors.secondaryText
                wrapMode: Text.NoWrap
            }
        }
    }
}
