import QtQuick

// Moves a screen between a speck at the point that was tapped and its full size, fading it in
// or out on the way. Scaling from the top-left corner while moving the corner towards the
// tapped point by the same fraction keeps that point fixed on the screen, which a transform
// origin (limited to the item's corners, edges and centre) cannot do.
Transition {
    id: zoom

    // The tapped point in the stack's coordinates.
    property point origin
    // Growing out of the point (push) or shrinking back into it (pop).
    property bool shrinking: false
    readonly property int duration: 800
    // Quick at the start when growing, quick at the end when shrinking: the screen leaves the
    // point, or falls into it, with a snap.
    readonly property int easingType: shrinking ? Easing.InCubic : Easing.OutCubic

    readonly property real smallScale: 0.01
    readonly property real fromScale: shrinking ? 1 : smallScale
    readonly property real toScale: shrinking ? smallScale : 1

    PropertyAction {
        property: "transformOrigin"
        value: Item.TopLeft
    }
    ParallelAnimation {
        NumberAnimation {
            property: "scale"
            from: zoom.fromScale
            to: zoom.toScale
            duration: zoom.duration
            easing.type: zoom.easingType
        }
        NumberAnimation {
            property: "x"
            from: zoom.origin.x * (1 - zoom.fromScale)
            to: zoom.origin.x * (1 - zoom.toScale)
            duration: zoom.duration
            easing.type: zoom.easingType
        }
        NumberAnimation {
            property: "y"
            from: zoom.origin.y * (1 - zoom.fromScale)
            to: zoom.origin.y * (1 - zoom.toScale)
            duration: zoom.duration
            easing.type: zoom.easingType
        }
        NumberAnimation {
            property: "opacity"
            from: zoom.shrinking ? 1 : 0
            to: zoom.shrinking ? 0 : 1
            duration: zoom.duration
            easing.type: zoom.easingType
        }
    }
}
