#include "AppWindow.h"
#include "quiz/wordorder/WordOrderBoard.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

class WordOrderBoardUiTest : public ::testing::Test {
protected:
    AppWindow app;
    WordOrderBoard board;
    std::unique_ptr<QObject> view;

    // The board's view over the whole window, on the body colour, as the quiz screen shows it
    // below its info panel.
    void show()
    {
        QQmlComponent component(&app.engine());
        component.setData(R"(import QtQuick
import Tolvane
Rectangle {
    id: root
    required property WordOrderBoard board
    anchors.fill: parent
    color: AppColors.body
    WordOrderBoardView {
        objectName: "workArea"
        y: parent.height * 0.3
        width: parent.width
        height: parent.height * 0.4
        board: root.board
    }
})",
                          QUrl(u"qrc:/Tolvane/WordOrderBoardUiTest.qml"_s));
        view.reset(component.beginCreate(app.engine().rootContext()));
        ASSERT_TRUE(view) << qPrintable(component.errorString());
        component.setInitialProperties(view.get(), {{u"board"_s, QVariant::fromValue(&board)}});
        view->setProperty("parent", QVariant::fromValue(app.window()->contentItem()));
        component.completeCreate();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(app.window()));
    }

    [[nodiscard]] QQuickItem *label(const QString &word) const
    {
        const QList<QQuickItem *> labels = findItems(app.window()->contentItem(), u"wordLabel"_s);
        for (QQuickItem *found : labels)
            if (found->parentItem()->property("word").toString() == word)
                return found;
        ADD_FAILURE() << "no label " << qPrintable(word);
        return nullptr;
    }

    [[nodiscard]] QRectF sceneRect(const QString &word) const
    {
        QQuickItem *item = label(word);
        return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    }

    // Presses on the label's centre, moves it in steps by the offset and lets it go.
    void drag(const QString &word, QPointF offset) const
    {
        const QPoint from = sceneRect(word).center().toPoint();
        QTest::mousePress(app.window(), Qt::LeftButton, Qt::NoModifier, from);
        constexpr int steps = 8;
        for (int step = 1; step <= steps; ++step)
            QTest::mouseMove(app.window(), from + (offset * step / steps).toPoint(), 10);
        QTest::mouseRelease(app.window(), Qt::LeftButton, Qt::NoModifier, from + offset.toPoint(),
                            10);
    }

    // The shown labels lie inside the work area, apart from each other.
    void expectApart(const QStringList &words) const
    {
        const QQuickItem *area = findItem(app.window()->contentItem(), u"workArea"_s);
        const QRectF bounds = area->mapRectToScene(QRectF(0, 0, area->width(), area->height()));
        for (qsizetype i = 0; i < words.size(); ++i) {
            const QRectF box = sceneRect(words.at(i));
            EXPECT_GE(box.left(), bounds.left()) << qPrintable(words.at(i));
            EXPECT_LE(box.right(), bounds.right()) << qPrintable(words.at(i));
            for (qsizetype j = 0; j < i; ++j)
                EXPECT_FALSE(box.intersects(sceneRect(words.at(j))))
                    << qPrintable(words.at(i)) << " on " << qPrintable(words.at(j));
        }
    }
};

TEST_F(WordOrderBoardUiTest, DraggingAWordPutsItBackIntoTheRow)
{
    const QStringList words{u"Wie"_s, u"geht"_s, u"es"_s, u"dir"_s};
    board.setWords(words, {u"dir"_s, u"es"_s, u"geht"_s, u"Wie"_s});
    show();
    ASSERT_GT(board.workAreaW(), 0);
    expectApart(words);

    // "Wie" dropped a little left of "dir", at the front; it lands with the row's start.
    const QRectF dir = sceneRect(u"dir"_s);
    drag(u"Wie"_s, QPointF(dir.left() - 5 - sceneRect(u"Wie"_s).left(), 12));
    ASSERT_TRUE(QTest::qWaitFor([&] { return board.answerText() == u"Wie dir es geht"_s; }))
        << qPrintable(board.answerText());
    EXPECT_DOUBLE_EQ(sceneRect(u"Wie"_s).left(), dir.left());
    EXPECT_DOUBLE_EQ(sceneRect(u"Wie"_s).top(), dir.top());
    expectApart(words);

    drag(u"geht"_s, QPointF(sceneRect(u"es"_s).left() - sceneRect(u"geht"_s).left() - 5, -8));
    ASSERT_TRUE(QTest::qWaitFor([&] { return board.answerText() == u"Wie dir geht es"_s; }))
        << qPrintable(board.answerText());
    drag(u"dir"_s, QPointF(sceneRect(u"es"_s).left() - sceneRect(u"dir"_s).left() + 5, 0));
    ASSERT_TRUE(QTest::qWaitFor([&] { return board.isAnswerRight(); }))
        << qPrintable(board.answerText());
    expectApart(words);
    (void)app.screenshot(u"wordOrderBoard"_s);
}

TEST_F(WordOrderBoardUiTest, ALongPhraseWrapsInsideTheArea)
{
    const QStringList words{u"Entschuldigung"_s, u"können"_s, u"Sie"_s, u"mir"_s, u"bitte"_s,
                            u"sagen"_s,          u"wie"_s,    u"ich"_s, u"zum"_s, u"Hauptbahnhof"_s,
                            u"komme"_s};
    QStringList shown = words;
    std::reverse(shown.begin(), shown.end());
    board.setWords(words, shown);
    show();
    expectApart(words);
    EXPECT_GT(sceneRect(u"Entschuldigung"_s).top(), sceneRect(u"komme"_s).top());

    // Keyboard: the focused label moves one place at a time.
    QQuickItem *slot = label(u"Sie"_s)->parentItem();
    slot->forceActiveFocus();
    QTest::keyClick(app.window(), Qt::Key_Right);
    EXPECT_EQ(board.testOrderedWords().indexOf(u"Sie"_s), 9);
    expectApart(words);
    (void)app.screenshot(u"wordOrderBoardWrapped"_s);
}

} // namespace
