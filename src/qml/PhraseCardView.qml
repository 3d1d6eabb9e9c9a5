import QtQuick
import QtQuick.Controls
import Tolvane

// The card of one phrase: its picture filling the top, then its place in the category, the
// German text with its pronunciation (hidden while the learner tests themself, keeping their
// room so nothing jumps) and its meaning in the learner's language.
Item {
    id: card

    required property PhraseCardVC phraseCard
    property real textScale: 1
    readonly property real padding: 12 * LayoutMetrics.scaleX

    // A dark grey shadow under the card.
    Rectangle {
        x: 2
        y: 2
        width: parent.width
        height: parent.height
        radius: face.radius
        color: Qt.rgba(1 / 3, 1 / 3, 1 / 3, 0.35)
    }

    Rectangle {
        id: face
        anchors.fill: parent
        radius: 8 * LayoutMetrics.scaleX
        color: "white"
        clip: true

        Image {
            objectName: "phraseImage"
            x: card.padding
            y: card.padding
            width: parent.width - 2 * card.padding
            height: texts.y - 2 * card.padding
            source: card.phraseCard.image
            fillMode: Image.PreserveAspectFit
            asynchronous: true
        }

        Column {
            id: texts
            x: card.padding
            y: parent.height - height - card.padding
            width: parent.width - 2 * card.padding
            spacing: 4 * LayoutMetrics.scaleY

            Label {
                objectName: "phrasePosition"
                anchors.horizontalCenter: parent.horizontalCenter
                visible: card.phraseCard.hasPhrase
                text: qsTr("%1 of %2").arg((card.phraseCard.currentIndex + 1).toLocaleString(Qt.locale(UiLanguage.localeName), "f", 0))
                                        .arg(card.phraseCard.phraseCount.toLocaleString(Qt.locale(UiLanguage.localeName), "f", 0))
                font.pixelSize: 12 * card.textScale
                color: AppColors.secondaryText
            }
            VoLabel {
                objectName: "phraseText"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                opacity: card.phraseCard.phraseHidden ? 0 : 1
                text: card.phraseCard.phraseText
                font.pixelSize: 22 * card.textScale
                font.bold: true
                color: AppColors.text
            }
            VoLabel {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                visible: text !== ""
                opacity: card.phraseCard.phraseHidden ? 0 : 1
                text: card.phraseCard.phonetics
                font.pixelSize: 14 * card.textScale
                color: AppColors.secondaryText
            }
            VoLabel {
                objectName: "phraseTranslation"
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: card.phraseCard.translation
                font.pixelSize: 17 * card.textScale
                color: AppColors.text
            }
        }
    }
}
