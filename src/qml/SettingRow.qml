import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Tolvane

// One row of the settings list: its title on the left, then the row's own controls, then a
// value text on the right. A row that does something when tapped says so with `tappable`; it
// then takes the keyboard focus too, so Tab and Space work on the desktop.
ItemDelegate {
    id: row

    property string detail
    property bool tappable: false
    property real inset: 12 * LayoutMetrics.scaleX
    default property alias controls: slot.data

    readonly property real textScale: Math.min(LayoutMetrics.scaleX, LayoutMetrics.scaleY)

    width: ListView.view ? ListView.view.width : parent.width
    implicitHeight: 48 * LayoutMetrics.scaleY
    leftPadding: inset
    rightPadding: inset
    focusPolicy: tappable ? Qt.StrongFocus : Qt.NoFocus
    hoverEnabled: tappable
    Accessible.name: text

    background: RowBackground {
        separatorInset: row.inset
        tint: row.tappable && row.down ? 0.16 : (row.visualFocus ? 0.07 : 0)
    }

    contentItem: RowLayout {
        spacing: row.inset

        VoLabel {
            Layout.fillWidth: true
            Layout.fillHeight: true
            text: row.text
            font.pixelSize: 17 * row.textScale
            color: AppColors.text
        }
        RowLayout {
            id: slot
            Layout.fillHeight: true
            spacing: row.inset
        }
        VoLabel {
            objectName: "settingDetail"
            Layout.fillHeight: true
            visible: text !== ""
            text: row.detail
            font.pixelSize: 15 * row.textScale
            color: AppColors.secondaryText
            wrapMode: Text.NoWrap
        }
    }
}
