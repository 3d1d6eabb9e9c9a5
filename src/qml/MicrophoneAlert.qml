import QtQuick
import QtQuick.Controls
import Tolvane

// Said when the microphone cannot be used: no title, the reason, "Cancel", and "Open Settings"
// where the desktop has sound settings to open.
Dialog {
    id: alert

    required property MicrophonePermission permission

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(parent.width * 0.8, 320)
    modal: true
    title: ""
    padding: 20

    Label {
        objectName: "microphoneAlertMessage"
        width: parent.width
        text: alert.permission.message
        font.pixelSize: 17
        font.bold: true
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }

    footer: DialogButtonBox {
        Button {
            objectName: "microphoneAlertCancel"
            text: alert.permission.cancelTitle
            DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
        }
        Button {
            objectName: "microphoneAlertSettings"
            visible: alert.permission.canOpenSettings
            text: alert.permission.openSettingsTitle
            DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
        }
    }

    onAccepted: permission.openSettings()
}
