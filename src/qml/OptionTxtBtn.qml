import QtQuick
import QtQuick.Controls

// One answer of a question as a text on a dark button; the chosen one turns orange. The tag is
// the option's slot, 0 to 3, which the screen hands to its session when the button is pressed.
AbstractButton {
    id: button

    property int tag
    property bool selected
    property color bgColor
    property color selectedBgColor
    property real textSize: 20

    focusPolicy: Qt.NoFocus
    padding: 6
    Accessible.name: text

    contentItem: Label {
        text: button.text
        color: "white"
        font.pixelSize: button.textSize
        fontSizeMode: Text.Fit
        minimumPixelSize: 9
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: 4
        color: button.selected ? button.selectedBgColor : button.bgColor
        opacity: button.down ? 0.8 : 1
    }
}
