import QtQuick
import QtQuick.Controls
import Tolvane

// The short-lived speed badge of a player bar. It appears centred on the speed button that was
// pressed and lifted so that its bottom lies 5 points above where its top would be. The buttons
// sit in a row that is the badge's sibling.
Label {
    id: badge

    required property VoPlayerBox engine
    required property Item speedUpButton
    required property Item speedDownButton
    readonly property Item pressed: engine.speedRemindAnchor === "speedUp" ? speedUpButton : speedDownButton

    objectName: "speedRemindLabel"
    x: pressed.parent.x + pressed.x + (pressed.width - width) / 2
    y: pressed.parent.y + pressed.y + (pressed.height - height) / 2 - height - 5
    z: 1
    width: 35
    height: 30
    visible: engine.speedRemindVisible
    text: engine.speedRemindText
    opacity: 0.8
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    font.pixelSize: 14
    font.bold: true
    background: Rectangle {
        color: "lightgrey"
        radius: 3
    }
}
