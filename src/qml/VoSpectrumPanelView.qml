import QtQuick
import Tolvane

// One recording's spectrum over a frosted background, with the compact player bar under it.
// The strip scrolls where the panel says: a page at a time while the recording plays.
Item {
    id: view

    required property VoSpectrumPanel panel
    readonly property real asMargin: LayoutMetrics.screenHeight * 5 / 568
    readonly property real asHeight: LayoutMetrics.screenHeight * 128 / 568
    readonly property real barHeight: LayoutMetrics.screenWidth * 30 / 320

    implicitHeight: asMargin + asHeight + asMargin + barHeight

    Image {
        anchors.fill: parent
        source: "icons/texture_frost_50.svg"
        fillMode: Image.Tile
    }

    Flickable {
        id: asContainer
        objectName: "asContainer"
        x: view.asMargin
        y: view.asMargin
        width: view.width - 2 * view.asMargin
        // The strip gives way when the panel is squeezed, so that the bar stays inside it.
        height: Math.max(0, Math.min(view.asHeight,
                                     view.height - 3 * view.asMargin - view.barHeight))
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        flickableDirection: Flickable.HorizontalFlick
        contentWidth: Math.max(width, asView.width)
        contentHeight: height
        contentX: view.panel.contentX
        onWidthChanged: view.panel.containerWidth = width
        Component.onCompleted: view.panel.containerWidth = width

        Rectangle {
            width: asContainer.contentWidth
            height: asContainer.height
            color: "white"
        }

        // One point of width per frame; the rows stretch to the strip's height.
        VoAudioSpectrumView {
            id: asView
            objectName: "asView"
            panel: view.panel
            width: view.panel.spectrumWidth
            height: asContainer.height
        }
    }

    VoPlayerBoxView {
        objectName: "playerBoxView"
        y: asContainer.y + asContainer.height + view.asMargin
        width: view.width
        height: view.barHeight
        engine: view.panel.playerBox
    }
}
