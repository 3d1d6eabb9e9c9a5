import QtQuick
import QtQuick.Controls

// One answer of a question as the phrase's picture; the chosen one is framed in orange instead
// of dark blue. The tag is the option's slot, 0 to 3.
AbstractButton {
    id: button

    property int tag
    property bool selected
    property color bgColor
    property color selectedBgColor
    // The picture's file URL; an empty one leaves a plain frame.
    property url image

    focusPolicy: Qt.NoFocus
    padding: 3

    contentItem: Image {
        source: button.image
        fillMode: Image.PreserveAspectCrop
        asynchronous: true
        clip: true
    }

    background: Rectangle {
        radius: 4
        color: "white"
        border.width: 3
        border.color: button.selected ? button.selectedBgColor : button.bgColor
        opacity: button.down ? 0.8 : 1
    }
}
