import QtQuick
import Tolvane

// The full player bar for a list of phrases: stop, previous, slower, play/pause, faster, next
// and the repeat mode, centred in the bar on a clear background, with the speed badge.
Item {
    id: bar

    required property VoPlayerBox engine
    readonly property bool wide: LayoutMetrics.screenWidth > 760
    readonly property real margin: wide ? 20 : 15
    readonly property real btnWidth: wide ? 40 : 32
    readonly property real btnHeight: btnWidth

    implicitHeight: btnHeight + margin

    // The enabled states must match the list the engine holds, empty or set.
    Component.onCompleted: engine.resetBtnImage()

    Row {
        x: (bar.width - 7 * bar.btnWidth - 6 * bar.margin) / 2
        y: (bar.height - bar.btnHeight) / 2
        spacing: bar.margin

        VoPlayerButton {
            objectName: "stopButton"
            width: bar.btnWidth
            height: bar.btnHeight
            touchHighlight: true
            image: bar.engine.stopImage
            enabled: bar.engine.stopEnabled
            Accessible.name: qsTr("Stop")
            onClicked: bar.engine.stop()
        }
        VoPlayerButton {
            objectName: "lastButton"
            pointsAlongText: true
            width: bar.btnWidth
            height: bar.btnHeight
            touchHighlight: true
            image: bar.engine.lastImage
            enabled: bar.engine.lastEnabled
            Accessible.name: qsTr("Previous phrase")
            onClicked: bar.engine.playLastItem()
        }
        VoPlayerButton {
            id: speedDownButton
            objectName: "speedDownButton"
            pointsAlongText: true
            width: bar.btnWidth
            height: bar.btnHeight
            touchHighlight: true
            image: bar.engine.speedDownImage
            enabled: bar.engine.speedDownEnabled
            Accessible.name: qsTr("Slower")
            onClicked: bar.engine.speedDown()
        }
        VoPlayerButton {
            objectName: "playButton"
            width: bar.btnWidth
            height: bar.btnHeight
            touchHighlight: true
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
            touchHighlight: true
            image: bar.engine.speedUpImage
            enabled: bar.engine.speedUpEnabled
            Accessible.name: qsTr("Faster")
            onClicked: bar.engine.speedUp()
        }
        VoPlayerButton {
            objectName: "nextButton"
            pointsAlongText: true
            width: bar.btnWidth
            height: bar.btnHeight
            touchHighlight: true
            image: bar.engine.nextImage
            enabled: bar.engine.nextEnabled
            Accessible.name: qsTr("Next phrase")
            onClicked: bar.engine.playNextItem()
        }
        VoPlayerButton {
            objectName: "playModelSwitchButton"
            width: bar.btnWidth
            height: bar.btnHeight
            touchHighlight: true
            image: bar.engine.playModelImage
            Accessible.name: qsTr("Repeat mode")
            onClicked: bar.engine.switchPlayModel()
        }
    }

    SpeedRemindLabel {
        engine: bar.engine
        speedUpButton: speedUpButton
        speedDownButton: speedDownButton
        color: "dimgrey"
    }
}
