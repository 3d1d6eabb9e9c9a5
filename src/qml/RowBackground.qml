import QtQuick
import Tolvane

// The white ground of a list row with a hairline under it, indented like the row's text.
// A tapped or current row shows a light tint of the bar colour.
Rectangle {
    property real separatorInset
    property real tint

    color: "white"

    Rectangle {
        anchors.fill: parent
        color: AppColors.barBlue
        opacity: parent.tint
    }
    Rectangle {
        x: parent.separatorInset
        y: parent.height - height
        width: parent.width - x
        height: 1
        color: AppColors.separator
    }
}
