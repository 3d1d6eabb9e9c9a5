import QtQuick
import Tolvane

// The microphone: held down while the learner speaks, with the mouse, a finger or the hold key
// (which the page forwards through handleKey). A key's auto-repeat and a release without a press
// are ignored, so each hold makes exactly one recording.
IconButton {
    id: button

    property int holdKey: Qt.Key_Space
    readonly property bool held: d.held

    signal holdStarted()
    signal holdEnded()

    // For the page's key handlers; true when the event was the hold key, which it then takes.
    function handleKey(event, down) {
        if (event.key !== holdKey || event.modifiers !== Qt.NoModifier)
            return false
        event.accepted = true
        if (!event.isAutoRepeat && enabled)
            d.setHeld(down)
        return true
    }

    icon.source: "icons/btn-microphone.svg"
    Accessible.name: qsTr("Hold to speak")

    onPressed: d.setHeld(true)
    onReleased: d.setHeld(false)
    onCanceled: d.setHeld(false)
    onEnabledChanged: if (!enabled) d.setHeld(false)

    background: Rectangle {
        radius: width / 2
        color: button.held ? "#ff3b30" : AppColors.barBlue
        opacity: button.enabled ? 1 : 0.4
    }

    QtObject {
        id: d

        property bool held: false

        function setHeld(on) {
            if (held === on)
                return
            held = on
            if (on)
                button.holdStarted()
            else
                button.holdEnded()
        }
    }
}
