import QtQuick
import Tolvane

// The work area of the word-order quiz: one label per word, standing where the board puts it.
// A label follows the pointer while it is dragged and is handed back to the board when it is
// let go; the board decides where it lands. A tab-focused label moves with the arrow keys.
// When the words need more rows than the area is high, the area scrolls.
Flickable {
    id: area

    required property WordOrderBoard board

    contentWidth: width
    contentHeight: board.contentHeight
    interactive: contentHeight > height
    clip: true

    Binding {
        target: area.board
        property: "workAreaW"
        value: area.width
    }
    Binding {
        target: area.board
        property: "workAreaH"
        value: area.height
    }

    Repeater {
        model: area.board

        delegate: Item {
            id: slot

            required property int index
            required property string word
            required property real labelX
            required property real labelY
            required property real labelWidth

            x: labelX
            y: labelY
            width: labelWidth
            height: area.board.labelHeight
            // A dragged label passes over the others.
            z: dragArea.drag.active ? 1 : 0

            Rectangle {
                id: label

                objectName: "wordLabel"
                width: slot.width
                height: slot.height
                radius: height * 0.2
                color: dragArea.pressed ? "#ff9500" : AppColors.barBlue
                border.color: "white"
                border.width: slot.activeFocus ? 2 : 0

                Text {
                    anchors.fill: parent
                    text: slot.word
                    font: area.board.font
                    color: "white"
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    // Only a word wider than the whole area is squeezed into its label.
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 6
                }

                MouseArea {
                    id: dragArea

                    anchors.fill: parent
                    drag.target: label
                    // Inside the work area, so that a label never gets lost off screen.
                    drag.minimumX: -slot.x
                    drag.maximumX: area.contentWidth - slot.x - slot.width
                    drag.minimumY: -slot.y
                    drag.maximumY: area.contentHeight - slot.y - slot.height
                    drag.threshold: 2
                    // The label stays under the pointer, also over the first few pixels.
                    drag.smoothed: false
                    preventStealing: true

                    onReleased: {
                        area.board.dropWord(slot.index, slot.x + label.x, slot.y + label.y)
                        label.x = 0
                        label.y = 0
                    }
                }
            }

            activeFocusOnTab: true
            // Alt+Left stays the screen's way back.
            Keys.onLeftPressed: event => slot.shift(event, -1)
            Keys.onRightPressed: event => slot.shift(event, 1)

            function shift(event, step) {
                event.accepted = event.modifiers === Qt.NoModifier
                if (event.accepted)
                    area.board.shiftWord(index, step)
            }
        }
    }
}
