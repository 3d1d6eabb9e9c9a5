import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tolvane

// The settings: how fast phrases are played, the learner's mother language, how long a quiz
// lasts, the cache, and the ways to reach the makers: a feedback mail and the store's review
// page.
BasePage {
    id: page

    title: qsTr("Settings")

    // The cache may have grown while another screen was shown.
    StackView.onActivated: controller.refreshCacheSize()

    SettingViewController {
        id: controller
    }

    TestDurPickerView {
        picker: controller.durationPicker
    }

    component SectionHeader: Label {
        x: page.margin
        topPadding: 16 * LayoutMetrics.scaleY
        bottomPadding: 4 * LayoutMetrics.scaleY
        font.pixelSize: 13 * page.textScale
        font.capitalization: Font.AllUppercase
        color: AppColors.secondaryText
    }

    Flickable {
        objectName: "settingList"
        anchors.fill: parent
        contentHeight: column.height
        clip: true
        ScrollIndicator.vertical: ScrollIndicator {}

        Column {
            id: column
            width: parent.width

            SectionHeader { text: qsTr("Listening") }
            SettingRow {
                objectName: "speedRow"
                text: qsTr("Playback speed")
                detail: qsTr("%1x").arg(controller.playSpeed.toLocaleString(Qt.locale(UiLanguage.localeName), "f", 1))
                Slider {
                    objectName: "speedSlider"
                    Layout.preferredWidth: 100 * LayoutMetrics.scaleX
                    from: controller.minPlaySpeed
                    to: controller.maxPlaySpeed
                    stepSize: controller.playSpeedStep
                    snapMode: Slider.SnapAlways
                    value: controller.playSpeed
                    onMoved: controller.playSpeed = value
                }
            }
            SettingRow {
                objectName: "languageRow"
                text: qsTr("Mother language")
                ComboBox {
                    objectName: "languageBox"
                    Layout.preferredWidth: 130 * LayoutMetrics.scaleX
                    model: controller.languageNames
                    currentIndex: controller.languageIndex
                    onActivated: index => controller.languageIndex = index
                }
            }

            SectionHeader { text: qsTr("Quizzes") }
            SettingRow {
                objectName: "durationRow"
                tappable: true
                text: qsTr("Test duration")
                detail: qsTr("%n seconds", "", controller.testDuration)
                onClicked: controller.durationPicker.open()
            }

            SectionHeader { text: qsTr("Storage") }
            SettingRow {
                objectName: "cacheRow"
                text: qsTr("Cache")
                detail: qsTr("%1 MB").arg(controller.cacheSize.toLocaleString(Qt.locale(UiLanguage.localeName), "f", 2))
                Button {
                    objectName: "clearCacheButton"
                    text: qsTr("Clear")
                    onClicked: controller.clearCache()
                }
            }

            SectionHeader { text: qsTr("About") }
            SettingRow {
                objectName: "feedbackRow"
                tappable: true
                text: qsTr("Send feedback")
                onClicked: controller.sendFeedback()
            }
            SettingRow {
                objectName: "reviewRow"
                tappable: true
                text: qsTr("Rate Tolvane")
                onClicked: controller.openReviewPage()
            }
        }
    }
}
