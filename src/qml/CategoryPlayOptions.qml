import QtQuick
import QtQuick.Controls
import Tolvane

// The category screen's choices for the list player: how many times each phrase sounds and how
// long the pause before each phrase lasts.
Rectangle {
    id: options

    required property CategoryViewController controller
    property real sideMargin
    property real textScale: 1

    implicitHeight: 44 * LayoutMetrics.scaleY
    color: AppColors.body

    Rectangle {
        width: parent.width
        height: 1
        color: AppColors.separator
    }

    Row {
        x: options.sideMargin
        height: parent.height
        spacing: 8 * LayoutMetrics.scaleX

        Label {
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            text: qsTr("Play each")
            font.pixelSize: 14 * options.textScale
            color: AppColors.secondaryText
        }
        ComboBox {
            objectName: "repeatChoice"
            anchors.verticalCenter: parent.verticalCenter
            width: 64 * LayoutMetrics.scaleX
            font.pixelSize: 14 * options.textScale
            model: options.controller.repeatChoices.map(count => qsTr("%1×").arg(count.toLocaleString(Qt.locale(UiLanguage.localeName), "f", 0)))
            currentIndex: options.controller.repeatChoices.indexOf(options.controller.repeatCount)
            onActivated: index => options.controller.repeatCount = options.controller.repeatChoices[index]
        }
        Item {
            width: 8 * LayoutMetrics.scaleX
            height: 1
        }
        Label {
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            text: qsTr("Pause")
            font.pixelSize: 14 * options.textScale
            color: AppColors.secondaryText
        }
        ComboBox {
            objectName: "delayChoice"
            anchors.verticalCenter: parent.verticalCenter
            width: 72 * LayoutMetrics.scaleX
            font.pixelSize: 14 * options.textScale
            model: options.controller.delayChoices.map(seconds => qsTr("%1 s").arg(seconds.toLocaleString(Qt.locale(UiLanguage.localeName), "f", 0)))
            currentIndex: options.controller.delayChoices.indexOf(options.controller.itemDelay)
            onActivated: index => options.controller.itemDelay = options.controller.delayChoices[index]
        }
    }
}
