pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import Tolvane

// The results of a finished quiz, a row per question in asking order. Rows are an eleventh of
// the table's height but never lower than the session's bound; a tapped row plays its phrase
// and stays highlighted while it sounds. Every quiz kind shows its results with it.
ListView {
    id: table

    // The finished session (a BaseQuizViewController).
    property var quiz

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    model: quiz.results
    ScrollIndicator.vertical: ScrollIndicator {}

    // The session works in design points.
    onHeightChanged: quiz.setResultTableHeight(height / LayoutMetrics.scaleY)
    Component.onCompleted: quiz.setResultTableHeight(height / LayoutMetrics.scaleY)

    delegate: CommonResultCellView {
        required property int index
        required srcText
        required rightText
        required rightTextShown
        required testText
        required testTextColor
        required property color rowColor

        objectName: "resultRow"
        width: ListView.view.width
        height: table.quiz.resultRowH * LayoutMetrics.scaleY
        color: rowColor
        separatorColor: table.quiz.seperatedColor
        onTapped: table.quiz.playClickedItem(index)
    }
}
