#include "quiz/wordorder/WordOrderBoard.h"

#include <QRandomGenerator>
#include <QRectF>
#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

class WordOrderBoardTest : public ::testing::Test {
protected:
    WordOrderBoard board;

    WordOrderBoardTest()
    {
        board.setWorkAreaW(300);
        board.setWorkAreaH(150);
    }

    [[nodiscard]] QRectF rect(int row) const
    {
        const QModelIndex index = board.index(row);
        return {board.data(index, WordOrderBoard::LabelXRole).toDouble(),
                board.data(index, WordOrderBoard::LabelYRole).toDouble(),
                board.data(index, WordOrderBoard::LabelWidthRole).toDouble(), board.labelHeight()};
    }

    [[nodiscard]] int row(const QString &word) const
    {
        return static_cast<int>(board.randomOrderedWords().indexOf(word));
    }

    void dropAt(const QString &word, double x)
    {
        board.dropWord(row(word), x, rect(row(word)).y());
    }

    // No overlaps, all inside, and reading row by row, left to right, gives the answer.
    void expectTidy() const
    {
        QList<int> rows;
        for (int i = 0; i < board.rowCount(); ++i) {
            const QRectF box = rect(i);
            EXPECT_TRUE(QRectF(0, 0, board.workAreaW(), board.contentHeight()).contains(box)) << i;
            for (int j = 0; j < i; ++j)
                EXPECT_FALSE(box.intersects(rect(j))) << i << " overlaps " << j;
            rows.append(i);
        }
        std::sort(rows.begin(), rows.end(), [this](int a, int b) {
            return rect(a).top() != rect(b).top() ? rect(a).top() < rect(b).top()
                                                  : rect(a).left() < rect(b).left();
        });
        QStringList reading;
        for (const int i : rows)
            reading.append(board.randomOrderedWords().at(i));
        EXPECT_EQ(reading, board.testOrderedWords());
    }
};

TEST_F(WordOrderBoardTest, ShowsThePhrasesWordsShuffledAndAOneWordPhraseRightAtOnce)
{
    QRandomGenerator random(7);
    board.setPhrase(u"Ich hätte gern einen Kaffee, bitte."_s, random);
    const QStringList words{u"Ich"_s, u"hätte"_s, u"gern"_s, u"einen"_s, u"Kaffee"_s, u"bitte"_s};
    EXPECT_EQ(board.standardOrderedWords(), words);
    EXPECT_EQ(board.expectedText(), u"Ich hätte gern einen Kaffee bitte"_s);
    EXPECT_NE(board.randomOrderedWords(), words) << "one draw in 720 leaves them in order";
    EXPECT_FALSE(board.isAnswerRight());
    expectTidy();

    board.setPhrase(u"Danke!"_s, random);
    EXPECT_TRUE(board.isAnswerRight());
    const QRectF alone = rect(0);
    EXPECT_DOUBLE_EQ(alone.left(), (300 - alone.width()) / 2);
    EXPECT_DOUBLE_EQ(alone.top(), (150 - 30) / 2);

    // Which copy of a repeated word stands where does not matter, nor do capitals.
    board.setWords({u"Die"_s, u"Katze"_s, u"sieht"_s, u"die"_s, u"Maus"_s},
                   {u"die"_s, u"Katze"_s, u"sieht"_s, u"Die"_s, u"Maus"_s});
    EXPECT_TRUE(board.isAnswerRight());
}

TEST_F(WordOrderBoardTest, MovesPastTheEndsOrOfNoLabelOrToNowhereChangeNothing)
{
    board.setWords({u"Guten"_s, u"Tag"_s}, {u"Tag"_s, u"Guten"_s});
    board.shiftWord(0, -1);
    board.shiftWord(1, 1);
    board.dropWord(2, 0, 0);
    board.dropWord(-1, 0, 0);
    board.shiftWord(5, -1);
    board.dropWord(1, std::numeric_limits<double>::quiet_NaN(), 0);
    board.dropWord(1, 0, std::numeric_limits<double>::infinity());
    EXPECT_EQ(board.answerText(), u"Tag Guten"_s);
}

TEST_F(WordOrderBoardTest, ALongPhraseWrapsAndScrollsAndDropsAnywhereKeepItTidy)
{
    QRandomGenerator random(3);
    board.setPhrase(
        u"Entschuldigung, können Sie mir bitte sagen, wie ich zum Hauptbahnhof komme?"_s, random);
    board.setWorkAreaW(200);
    expectTidy();
    EXPECT_GT(board.contentHeight(), board.workAreaH());
    for (int drop = 0; drop < 40; ++drop) {
        board.dropWord(static_cast<int>(random.bounded(board.rowCount())),
                       random.bounded(260.0) - 30, random.bounded(400.0) - 50);
        expectTidy(); // also: no word lost or doubled
    }
    // A word wider than the whole area gets a label as wide as the area allows.
    board.setWords({u"Donaudampfschifffahrtsgesellschaftskapitän"_s},
                   {u"Donaudampfschifffahrtsgesellschaftskapitän"_s});
    EXPECT_DOUBLE_EQ(rect(0).width(), 200 - 2 * board.padding());
}

TEST_F(WordOrderBoardTest, ADropJoinsTheRowItIsNearestAndAnEqualXKeepsTheEarlierOrder)
{
    board.setWords({u"A"_s, u"B"_s, u"C"_s}, {u"A"_s, u"B"_s, u"C"_s});
    const double bx = rect(row(u"B"_s)).x();
    dropAt(u"C"_s, bx);
    dropAt(u"A"_s, bx);
    EXPECT_EQ(board.answerText(), u"A B C"_s);
    dropAt(u"A"_s, bx + 0.5);
    EXPECT_EQ(board.answerText(), u"B A C"_s);
    board.dropWord(row(u"C"_s), 0, -400); // far above the only row
    EXPECT_EQ(board.answerText(), u"C B A"_s);

    board.setWorkAreaW(150);
    board.setMinWordLblW(60);
    board.setPadding(10);
    // Two labels of 60 fill a row of 150: three rows of two, 30 high and 10 apart.
    const QStringList words{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s};
    board.setWords(words, words);
    EXPECT_DOUBLE_EQ(rect(row(u"b"_s)).left(), rect(row(u"a"_s)).right() + 10);
    EXPECT_DOUBLE_EQ(rect(row(u"c"_s)).top(), rect(row(u"a"_s)).top() + 30 + 10);
    // "f" held just left of "c", its top nearer the middle row than the others.
    board.dropWord(row(u"f"_s), rect(row(u"c"_s)).x() - 1, rect(row(u"c"_s)).y() + 14);
    EXPECT_EQ(board.answerText(), u"a b f c d e"_s);
    expectTidy();
}

} // namespace
