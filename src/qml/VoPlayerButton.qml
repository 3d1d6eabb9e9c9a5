import QtQuick
import QtQuick.Controls
import Tolvane

// A button of a player bar: the player engine names its picture and says whether it takes taps.
// The pictures carry their own padding, so the picture fills the button.
AbstractButton {
    id: button

    // One of the engine's image names, e.g. "vo_play" or its greyed form "speedup2".
    property string image
    // The list bar's buttons show where the finger is.
    property bool touchHighlight: false
    // Previous, next, slower and faster point the way of reading; play keeps pointing forward
    // in time, as players do in every language.
    property bool pointsAlongText: false

    padding: 0
    focusPolicy: Qt.NoFocus

    contentItem: Image {
        source: button.image === "" ? "" : "icons/" + button.image + ".svg"
        sourceSize.width: button.width
        sourceSize.height: button.height
        fillMode: Image.PreserveAspectFit
        mirror: button.pointsAlongText && button.mirrored
    }

    background: Rectangle {
        radius: width / 2
        color: AppColors.barBlue
        opacity: button.touchHighlight && button.down ? 0.15 : 0
    }
}
