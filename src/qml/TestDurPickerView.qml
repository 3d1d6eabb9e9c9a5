import QtQuick
import QtQuick.Controls
import Tolvane

// The test duration picker: a head with "Cancel", the title and "OK" over one column of
// durations, as a sheet at the bottom of the screen over a dimmed mask. The controller decides
// what is selected and stored; this view shows it and forwards taps and keys.
Popup {
    id: popup

    // The settings screen's TestDurPickerView controller.
    required property QtObject picker

    readonly property real headH: 44 * LayoutMetrics.scaleY
    readonly property real pickerH: 200 * LayoutMetrics.scaleY
    readonly property real itemRowH: 40 * LayoutMetrics.scaleY
    readonly property real componentW: 200 * LayoutMetrics.scaleX
    readonly property real textScale: Math.min(LayoutMetrics.scaleX, LayoutMetrics.scaleY)

    function step(rows) {
        const last = picker.testDurVals.length - 1
        picker.selectedIndex = Math.max(0, Math.min(last, picker.selectedIndex + rows))
    }

    objectName: "durationPicker"
    parent: Overlay.overlay
    width: parent ? parent.width : 0
    height: headH + pickerH
    y: parent ? parent.height - height : 0
    padding: 0
    modal: true
    dim: true
    focus: true
    closePolicy: Popup.CloseOnEscape
    visible: picker.opened
    // Escape closes the sheet without the controller; tell it, as "Cancel" would.
    onClosed: picker.closeAction()

    // A text button of the blue head, lightened while held down.
    component HeadButton: ToolButton {
        id: headButton
        height: parent ? parent.height : 0
        leftPadding: 12 * LayoutMetrics.scaleX
        rightPadding: leftPadding
        font.pixelSize: 17 * popup.textScale
        focusPolicy: Qt.NoFocus
        contentItem: Label {
            text: headButton.text
            font: headButton.font
            color: "white"
            verticalAlignment: Text.AlignVCenter
        }
        background: Rectangle {
            color: "white"
            opacity: headButton.down ? 0.2 : 0
        }
    }

    Overlay.modal: Rectangle {
        objectName: "durationPickerMask"
        color: AppColors.popUpMask
    }

    background: Rectangle {
        color: "white"
    }

    contentItem: FocusScope {
        LayoutMirroring.enabled: UiLanguage.rightToLeft
        LayoutMirroring.childrenInherit: true
        focus: true
        Keys.onUpPressed: popup.step(-1)
        Keys.onDownPressed: popup.step(1)
        Keys.onReturnPressed: popup.picker.okAction()
        Keys.onEnterPressed: popup.picker.okAction()

        Rectangle {
            id: head
            width: parent.width
            height: popup.headH
            color: AppColors.barBlue

            HeadButton {
                objectName: "durationCancel"
                text: qsTr("Cancel")
                onClicked: popup.picker.closeAction()
            }
            Label {
                objectName: "durationTitle"
                anchors.centerIn: parent
                text: qsTr("Test Duration")
                font.pixelSize: 17 * popup.textScale
                font.bold: true
                color: "white"
            }
            HeadButton {
                objectName: "durationOk"
                anchors.right: parent.right
                text: qsTr("OK")
                font.bold: true
                onClicked: popup.picker.okAction()
            }
        }

        ListView {
            id: column
            objectName: "durationList"
            anchors.top: head.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            width: popup.componentW
            height: popup.pickerH
            clip: true
            model: popup.picker.testDurVals
            currentIndex: popup.picker.selectedIndex
            // The selected row sits in the middle, as on a picker wheel.
            preferredHighlightBegin: (height - popup.itemRowH) / 2
            preferredHighlightEnd: (height + popup.itemRowH) / 2
            highlightRangeMode: ListView.ApplyRange
            highlightMoveDuration: 0
            ScrollIndicator.vertical: ScrollIndicator {}

            delegate: ItemDelegate {
                id: row

                required property int index
                required property real modelData
                readonly property bool selected: index === popup.picker.selectedIndex

                objectName: "durationRow"
                width: ListView.view.width
                height: popup.itemRowH
                focusPolicy: Qt.NoFocus
                onClicked: popup.picker.selectedIndex = index

                background: Rectangle {
                    color: AppColors.barBlue
                    opacity: row.selected ? 0.12 : 0
                }
                contentItem: Label {
                    text: qsTr("%n seconds", "", row.modelData)
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    font.pixelSize: 20 * popup.textScale
                    font.bold: row.selected
                    color: AppColors.text
                }
            }
        }
    }
}
