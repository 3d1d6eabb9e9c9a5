import QtQuick

// The input level while the learner speaks: a bar that fills from the left, green while quiet,
// orange when loud and red near the top, so that a learner can see the microphone hears them.
Rectangle {
    id: meter

    // 0 (silence) to 1 (full scale).
    property real level: 0

    implicitHeight: 8
    radius: height / 2
    color: Qt.rgba(0, 0, 0, 0.15)

    Rectangle {
        objectName: "levelBar"
        height: parent.height
        radius: parent.radius
        width: Math.max(0, Math.min(1, meter.level)) * meter.width
        color: meter.level > 0.9 ? "#d0342c" : meter.level > 0.7 ? "#ff9500" : "#2e8b57"

        Behavior on width {
            NumberAnimation { duration: 50 }
        }
    }
}
