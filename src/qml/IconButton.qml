import QtQuick
import QtQuick.Controls

// A bar button that is only its white picture, lightened while it is held down. The picture
// fills the button because the artwork carries its own padding.
ToolButton {
    id: button

    padding: 0
    icon.color: "transparent"
    icon.width: width
    icon.height: height
    focusPolicy: Qt.NoFocus

    background: Rectangle {
        color: "white"
        opacity: button.down ? 0.2 : 0
    }
}
