import QtQuick
import QtQuick.Controls
import Tolvane

// Base of the pop-up panels shown over a screen: a header strip with a title and a close
// button, the panel's own content below it, and a dimmed mask over the rest of the screen.
// The mask belongs to the pop-up, so closing the panel takes the mask away with it.
Popup {
    id: popView

    property alias title: titleLabel.text
    readonly property real headH: 40
    // What a derived panel declares inside it goes below the header.
    default property alias content: body.data

    modal: true
    focus: true
    dim: true
    closePolicy: Popup.CloseOnEscape
    padding: 0

    Overlay.modal: Rectangle {
        objectName: "popUpMask"
        color: AppColors.popUpMask
    }

    background: Rectangle {
        color: "white"
    }

    contentItem: Item {
        // A pop-up sits over the screens, not in them, so it mirrors on its own.
        LayoutMirroring.enabled: UiLanguage.rightToLeft
        LayoutMirroring.childrenInherit: true

        Rectangle {
            id: header
            width: parent.width
            height: popView.headH
            color: AppColors.barBlue

            Label {
                id: titleLabel
                objectName: "popUpTitle"
                x: 30
                width: parent.width - 60
                height: popView.headH
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: 20
                fontSizeMode: Text.Fit
                minimumPixelSize: 10
                elide: Text.ElideRight
                color: "white"
            }

            IconButton {
                objectName: "closeButton"
                anchors.right: parent.right
                anchors.rightMargin: 2
                width: popView.headH
                height: popView.headH
                icon.source: "icons/btn_close.svg"
                Accessible.name: qsTr("Close")
                onClicked: popView.close()
            }
        }

        Item {
            id: body
            anchors.top: header.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
        }
    }
}
