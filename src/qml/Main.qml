import QtQuick
import QtQuick.Controls

ApplicationWindow {
    width: 375
    height: 667
    visible: true
    title: qsTr("Tolvane")
    StackView {
        anchors.fill: parent
        initialItem: MainPage {}
    }
}
