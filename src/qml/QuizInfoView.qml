import QtQuick
import QtQuick.Controls
import Tolvane

// The panel above every quiz: progress and score on the first line, the time left and the
// session's status on the second. The score's digits take the colour of how well it went.
Rectangle {
    id: panel

    // The session shown (a BaseQuizViewController).
    property var quiz
    property real textScale: 1
    // A quiz that marks each answer on its own shows progress only.
    property bool scoreVisible: true

    readonly property real lineHeight: 24 * textScale

    implicitHeight: grid.implicitHeight + 12 * textScale
    radius: 4
    color: "white"
    border.color: quiz.seperatedColor

    Grid {
        id: grid
        anchors.fill: parent
        anchors.margins: 6 * panel.textScale
        columns: 2
        rowSpacing: 2 * panel.textScale

        Label {
            objectName: "progressLbl"
            width: grid.width / 2
            // Named, so that Arabic puts it at the right edge of its column.
            horizontalAlignment: Text.AlignLeft
            height: panel.lineHeight
            verticalAlignment: Text.AlignVCenter
            text: panel.quiz.progressText
            color: panel.quiz.currTextColor
            font.pixelSize: 16 * panel.textScale
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 9
        }
        Label {
            objectName: "scoreLbl"
            // Hidden, not left out, so that the grid keeps its places.
            opacity: panel.scoreVisible ? 1 : 0
            width: grid.width / 2
            height: panel.lineHeight
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignRight
            textFormat: Text.StyledText
            text: panel.quiz.scoreStyledText
            color: panel.quiz.currTextColor
            font.pixelSize: 16 * panel.textScale
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 9
        }
        Label {
            objectName: "limitedTimeLbl"
            width: grid.width / 2
            horizontalAlignment: Text.AlignLeft
            height: panel.lineHeight
            verticalAlignment: Text.AlignVCenter
            text: panel.quiz.limitedTimeText
            color: AppColors.barBlue
            font.family: panel.quiz.timeFontFamily
            font.pixelSize: 20 * panel.textScale
            font.bold: true
        }
        Label {
            objectName: "quizStatusLbl"
            width: grid.width / 2
            height: panel.lineHeight
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignRight
            text: panel.quiz.quizStatusText
            color: AppColors.experience
            font.pixelSize: 18 * panel.textScale
            font.bold: true
        }
    }
}
