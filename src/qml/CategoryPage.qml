import QtQuick
import QtQuick.Controls
import Tolvane

// A category's phrases: each in German, its pronunciation and its meaning in the learner's
// language.
BasePage {
    id: page

    property alias categoryId: controller.categoryId

    title: controller.title

    CategoryViewController {
        id: controller
    }

    ListView {
        objectName: "phraseList"
        anchors.fill: parent
        focus: true
        clip: true
        model: controller.phrases
        topMargin: page.margin
        ScrollIndicator.vertical: ScrollIndicator {}

        delegate: RowBackground {
            id: row

            required property string text
            required property string phonetics
            required property string translation

            objectName: "phraseRow"
            width: ListView.view.width
            height: column.height + 2 * column.y
            separatorInset: page.margin

            Column {
                id: column
                x: page.margin
                y: 10 * LayoutMetrics.scaleY
                width: parent.width - 2 * page.margin
                spacing: 3 * LayoutMetrics.scaleY

                VoLabel {
                    objectName: "phraseText"
                    width: parent.width
                    text: row.text
                    font.pixelSize: 17 * page.textScale
                    font.bold: true
                    color: AppColors.text
                }
                VoLabel {
                    width: parent.width
                    visible: text !== ""
                    text: row.phonetics
                    font.pixelSize: 13 * page.textScale
                    color: AppColors.secondaryText
                }
                VoLabel {
                    objectName: "phraseTranslation"
                    width: parent.width
                    text: row.translation
                    font.pixelSize: 15 * page.textScale
                    color: AppColors.text
                }
            }
        }
    }
}
