import QtQuick
import Tolvane

// The compact player bar under a spectrum: stop, slower, play/pause and faster, centred in the
// bar, with the speed badge. It shows no time, slider or previous/next controls.
Item {
    id: bar

    required property VoPlayerBox engine
    readonly property real margin: LayoutMetrics.screenWidth * 20 / 320
    readonly property real btnWidth: LayoutMetrics.screenWidth * 25 / 320
    readonly property real btnHeight: btnWidth

    implicitHeight: btnHeight + margin

    Row {
        x: (bar.width - 4 * bar.btnWidth - 3 * bar.margin) / 2
        y: (bar.height - bar.btnHeight) / 2
        spacing: bar.margin

        VoPlayerButton {
            objectName: "stopButton"
            width: bar.btnWidth
            height: bar.btnHeight
            image: bar.engine.stopImage
            enabled: bar.engine.stopEnabled
            Accessible.name: qsTr("Stop")
            onClicked: bar.engine.stop()
        }
        VoPlayerButton {
            id: speedDownButton
            objectName: "speedDownButton"
            pointsAlongText: true
            width: bar.btnWidth
            height: bar.btnHeight
            image: bar.engine.speedDownImage
            enabled: bar.engine.speedDownEnabled
            Accessible.name: qsTr("Slower")
            onClicked: bar.engine.speedDown()
        }
        VoPlayerButton {
            objectName: "playButton"
            width: bar.btnWidth
            height: bar.btnHeight
            image: bar.engine.playImage
            Accessible.name: qsTr("Play or pause")
            onClicked: bar.engine.play(true)
        }
        VoPlayerButton {
            id: speedUpButton
            objectName: "speedUpButton"
            pointsAlongText: true
            width: bar.btnWidth
            height: bar.btnHeight
            image: bar.engine.speedUpImage
            enabled: bar.engine.speedUpEnabled
            Accessible.name: qsTr("Faster")
            onClicked: bar.engine.speedUp()
        }
    }

    SpeedRemindLabel {
        engine: bar.engine
        speedUpButton: speedUpButton
        speedDownButton: speedDownButton
        color: "blue"
    }
}
