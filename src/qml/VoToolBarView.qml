import QtQuick
import QtQuick.Controls
import Tolvane

// The bar at the top of every screen: a title, a back button and room for the screen's own
// buttons (one or two) on the right. The strip above the bar stands for the phone's status bar and
// takes the bar's colour.
Rectangle {
    id: toolBar

    property alias title: titleLabel.text
    property alias backVisible: backButton.visible
    // A button the screen adds on the right; the bar places and sizes it.
    property Component rightButton

    readonly property real barHeight: 44 * LayoutMetrics.scaleY
    readonly property real btnWidth: 44 * LayoutMetrics.scaleX
    readonly property real marginW: 2 * LayoutMetrics.scaleX

    // The screen decides what going back means; the bar only reports the press.
    signal back()

    implicitHeight: LayoutMetrics.topMargin + barHeight
    color: AppColors.barBlue

    Item {
        id: innerToolBar
        y: LayoutMetrics.topMargin
        width: parent.width
        height: toolBar.barHeight

        Label {
            id: titleLabel
            objectName: "toolBarTitle"
            x: (parent.width - width) / 2
            // Centred, clear of up to two buttons on either side.
            width: parent.width - 4 * toolBar.btnWidth - 4 * toolBar.marginW
            height: parent.height
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.bold: true
            font.pixelSize: toolBar.barHeight * 0.4
            fontSizeMode: Text.Fit
            minimumPixelSize: 10
            elide: Text.ElideRight
            color: "white"
            Accessible.role: Accessible.TitleBar
        }

        IconButton {
            id: backButton
            objectName: "backButton"
            anchors.left: parent.left
            pointsAlongText: true
            width: toolBar.btnWidth
            height: toolBar.barHeight
            icon.source: "icons/btn_back.svg"
            Accessible.name: qsTr("Back")
            onClicked: toolBar.back()
        }

        Loader {
            anchors.right: parent.right
            anchors.rightMargin: toolBar.marginW
            width: toolBar.btnWidth
            height: toolBar.barHeight
            sourceComponent: toolBar.rightButton
        }
    }
}
