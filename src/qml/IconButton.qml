import QtQuick
import QtQuick.Controls

// A bar button that is only its white picture, lightened while it is held down. The picture
// fills the button because the artwork carries its own padding.
ToolButton {
    id: button

    // An arrow points the way of reading: set on buttons whose picture means back or forward.
    property bool pointsAlongText: false

    padding: 0
    icon.color: "transparent"
    icon.width: width
    icon.height: height
    focusPolicy: Qt.NoFocus

    transform: Scale {
        origin.x: button.width / 2
        xScale: button.pointsAlongText && button.mirrored ? -1 : 1
    }

    background: Rectangle {
        color: "white"
        opacity: button.down ? 0.2 : 0
    }
}
