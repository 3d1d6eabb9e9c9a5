#include "app/TestDurPickerView.h"

#include "app/Preferences.h"

#include <QSettings>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TestDurPickerViewTest : public ::testing::Test {
protected:
    void SetUp() override { QSettings().clear(); }

    static void store(const QVariant &seconds)
    {
        QSettings().setValue(Preferences::testDurationKey, seconds);
    }

    TestDurPickerView picker;
};

} // namespace

TEST_F(TestDurPickerViewTest, OffersTenToThreeHundredSecondsInStepsOfFive)
{
    const QList<float> &values = picker.testDurVals();
    ASSERT_EQ(values.size(), 59);
    for (int i = 0; i < values.size(); ++i)
        EXPECT_EQ(values.at(i), static_cast<float>(10 + 5 * i));
    EXPECT_EQ(picker.testDurValues().size(), 59);
}

TEST_F(TestDurPickerViewTest, OpeningSelectsTheRowOfTheCurrentDuration)
{
    QSignalSpy opened(&picker, &TestDurPickerView::openedChanged);
    picker.open();
    EXPECT_TRUE(picker.isOpen());
    EXPECT_EQ(opened.count(), 1);
    EXPECT_EQ(picker.selectedIndex(), 10) << "unset reads as 60";

    for (const auto &[stored, row] : {std::pair{QVariant(90), 16},
                                      {QVariant(300), 58},
                                      {QVariant(-5), 10},
                                      {QVariant(u"long"_s), 10},
                                      {QVariant(62), -1},
                                      {QVariant(7.5), -1}}) {
        store(stored);
        picker.open();
        EXPECT_EQ(picker.selectedIndex(), row) << qPrintable(stored.toString());
    }
}

TEST_F(TestDurPickerViewTest, OkStoresTheSelectionOnlyWhenItDiffers)
{
    QSignalSpy changed(&Preferences::instance(), &Preferences::testDurationChanged);
    picker.open();
    picker.okAction();
    EXPECT_FALSE(picker.isOpen());
    EXPECT_FALSE(QSettings().contains(Preferences::testDurationKey)) << "60 is already current";
    EXPECT_EQ(changed.count(), 0);

    picker.open();
    picker.select(22);
    picker.okAction();
    EXPECT_EQ(QSettings().value(Preferences::testDurationKey).toFloat(), 120.0F);
    EXPECT_EQ(changed.count(), 1);

    // A duration no row shows stays while the learner selects none.
    store(62);
    picker.open();
    picker.okAction();
    EXPECT_EQ(Preferences::instance().testDuration(), 62.0F);
}

TEST_F(TestDurPickerViewTest, CancelKeepsTheDuration)
{
    picker.open();
    picker.select(0);
    picker.closeAction();
    EXPECT_FALSE(picker.isOpen());
    EXPECT_FALSE(QSettings().contains(Preferences::testDurationKey));

    for (const int outside : {-2, 59, 1000}) {
        picker.select(outside);
        EXPECT_EQ(picker.selectedIndex(), -1) << outside;
    }
}
