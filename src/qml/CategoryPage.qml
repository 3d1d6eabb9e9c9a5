import QtQuick
import QtQuick.Controls
import Tolvane

// A category's phrases, each in German, its pronunciation and its meaning in the learner's
// language, over the list player that reads them aloud. The phrase playing is marked; a tapped
// phrase opens the phrase cards there. Space plays or pauses, Left and Right step.
BasePage {
    id: page

    property alias categoryId: controller.categoryId

    function openPhrase(row, point) {
        open(phraseCards, { categoryId: controller.categoryId, phraseIndex: row.index },
             row.mapToItem(page, point))
    }

    title: controller.title
    rightButton: Component {
        Item {
            IconButton {
                id: shadowButton
                objectName: "shadowButton"
                anchors.right: parent.left
                width: parent.width
                height: parent.height
                icon.source: "icons/btn_shadow.svg"
                Accessible.name: qsTr("Shadow")
                onClicked: page.open(shadowing, { categoryId: controller.categoryId, phraseIndex: 0 },
                                     shadowButton.mapToItem(page, Qt.point(width / 2, height / 2)))
            }
            IconButton {
                id: quizButton
                objectName: "unitQuizButton"
                width: parent.width
                height: parent.height
                icon.source: "icons/btn_quiz.svg"
                Accessible.name: qsTr("Unit Quiz")
                onClicked: page.open(quizMenu, { categoryId: controller.categoryId },
                                     quizButton.mapToItem(page, Qt.point(width / 2, height / 2)))
            }
        }
    }

    Component {
        id: phraseCards
        PhraseCardPage {}
    }
    Component {
        id: quizMenu
        QuizOutlinePage {}
    }
    Component {
        id: shadowing
        ShadowingPage {}
    }

    // The sound belongs to this screen: it stops when another screen covers it or it goes.
    StackView.onDeactivating: controller.player.stopPlay()

    CategoryViewController {
        id: controller

        onPlayingIndexChanged: {
            if (playingIndex >= 0)
                list.positionViewAtIndex(playingIndex, ListView.Contain)
        }
    }

    ListView {
        id: list
        objectName: "phraseList"
        anchors.top: parent.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: options.top
        focus: true
        clip: true
        model: controller.phrases
        topMargin: page.margin
        ScrollIndicator.vertical: ScrollIndicator {}

        // Alt+Left is the screen's way back, so only plain arrows step.
        Keys.onLeftPressed: event => {
            event.accepted = event.modifiers === Qt.NoModifier
            if (event.accepted)
                controller.player.playLastItem()
        }
        Keys.onRightPressed: event => {
            event.accepted = event.modifiers === Qt.NoModifier
            if (event.accepted)
                controller.player.playNextItem()
        }

        delegate: ItemDelegate {
            id: row

            required property int index
            // The button's own text property is final, so the roles come through the model.
            required property var model

            objectName: "phraseRow"
            width: ListView.view.width
            leftPadding: page.margin
            rightPadding: page.margin
            topPadding: 10 * LayoutMetrics.scaleY
            bottomPadding: 10 * LayoutMetrics.scaleY
            focusPolicy: Qt.NoFocus
            Accessible.name: row.model.text

            onClicked: page.openPhrase(row, Qt.point(pressX, pressY))
            // The list's current row holds the key focus; Space is the player's, not a tap.
            Keys.onSpacePressed: controller.player.play(true)

            background: RowBackground {
                objectName: "phraseRowBackground"
                separatorInset: page.margin
                tint: row.down ? 0.16 : (row.index === controller.playingIndex ? 0.1 : 0)
            }

            contentItem: Column {
                spacing: 3 * LayoutMetrics.scaleY

                VoLabel {
                    objectName: "phraseText"
                    width: parent.width
                    text: row.model.text
                    font.pixelSize: 17 * page.textScale
                    font.bold: true
                    color: AppColors.text
                }
                VoLabel {
                    width: parent.width
                    visible: text !== ""
                    text: row.model.phonetics
                    font.pixelSize: 13 * page.textScale
                    color: AppColors.secondaryText
                }
                VoLabel {
                    objectName: "phraseTranslation"
                    width: parent.width
                    text: row.model.translation
                    font.pixelSize: 15 * page.textScale
                    color: AppColors.text
                }
            }
        }
    }

    CategoryPlayOptions {
        id: options
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: playerBar.top
        controller: controller
        sideMargin: page.margin
        textScale: page.textScale
    }

    // Above the list, so the speed badge can rise over the last rows.
    Rectangle {
        id: playerBar
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: bar.implicitHeight
        color: "white"

        VoListPlayerBoxView {
            id: bar
            objectName: "listPlayerBar"
            anchors.fill: parent
            engine: controller.player
        }
    }
}
