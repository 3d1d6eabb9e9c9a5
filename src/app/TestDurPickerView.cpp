#include "TestDurPickerView.h"

#include "Preferences.h"

TestDurPickerView::TestDurPickerView(QObject *parent)
    : QObject(parent)
{
    for (int i = 2; i <= 60; ++i)
        m_testDurVals.append(static_cast<float>(i * 5));
}

QVariantList TestDurPickerView::testDurValues() const
{
    QVariantList values;
    for (const float value : m_testDurVals)
        values.append(value);
    return values;
}

void TestDurPickerView::select(int index)
{
    const int selected = index >= 0 && index < m_testDurVals.size() ? index : -1;
    if (selected == m_selectedIndex)
        return;
    m_selectedIndex = selected;
    Q_EMIT selectedIndexChanged();
}

void TestDurPickerView::open()
{
    // The first equal value; a duration stored by other means (say 62) selects nothing.
    select(static_cast<int>(m_testDurVals.indexOf(Preferences::instance().testDuration())));
    setOpen(true);
}

void TestDurPickerView::okAction()
{
    if (m_selectedIndex >= 0) {
        const float chosen = m_testDurVals.at(m_selectedIndex);
        if (chosen != Preferences::instance().testDuration())
            Preferences::instance().setTestDuration(chosen);
    }
    closeAction();
}

void TestDurPickerView::closeAction()
{
    setOpen(false);
}

void TestDurPickerView::setOpen(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    Q_EMIT openedChanged();
}
