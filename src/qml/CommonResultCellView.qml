import QtQuick
import QtQuick.Controls
import Tolvane

// One question of a finished quiz: the phrase on top, its translation in the middle (hidden
// when the learner's language is German) and the answer at the bottom, green when right, red
// when wrong. Each line takes a third of the row; its text shrinks to fit and may wrap.
Rectangle {
    id: cell

    property string srcText
    // What the top line shows: the phrase, or a styled form of it, and what a screen reader says.
    property string srcShownText: srcText
    property string srcAccessibleName: srcText
    property string rightText
    property bool rightTextShown: true
    property string testText
    property color testTextColor
    property color separatorColor
    // Room kept free right of the answer, for a control at the row's right end.
    property real testTextRightInset: 0

    signal tapped()

    component ThirdLabel: Label {
        width: parent.width - 8
        x: 4
        height: parent.height / 3
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: Math.max(height * 0.6, 1)
        fontSizeMode: Text.Fit
        minimumPixelSize: 6
        wrapMode: Text.Wrap
        elide: Text.ElideRight
    }

    ThirdLabel {
        objectName: "srcTextLbl"
        y: 0
        text: cell.srcShownText
        Accessible.name: cell.srcAccessibleName
        color: AppColors.text
    }
    ThirdLabel {
        objectName: "rightTextLbl"
        y: cell.height / 3
        visible: cell.rightTextShown
        text: cell.rightText
        color: AppColors.secondaryText
    }
    ThirdLabel {
        objectName: "testTextLbl"
        width: parent.width - 8 - cell.testTextRightInset
        y: 2 * cell.height / 3
        text: cell.testText
        color: cell.testTextColor
    }
    Rectangle {
        y: cell.height - height
        width: cell.width
        height: 1
        color: cell.separatorColor
    }

    TapHandler {
        onTapped: cell.tapped()
    }
}
