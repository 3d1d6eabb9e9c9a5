#pragma once

#include <QList>
#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

/**
 * @brief The pop-up in which the learner chooses the time limit of every quiz.
 *
 * Offers 10 to 300 seconds in steps of 5. Opening selects the row equal to the current
 * duration, if any; OK stores the selected value only when it differs. The settings screen owns
 * it; TestDurPickerView.qml shows it and holds its sizes.
 */
class TestDurPickerView : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QVariantList testDurVals READ testDurValues CONSTANT)
    Q_PROPERTY(int selectedIndex READ selectedIndex WRITE select NOTIFY selectedIndexChanged)
    Q_PROPERTY(bool opened READ isOpen NOTIFY openedChanged)

public:
    explicit TestDurPickerView(QObject *parent = nullptr);

    [[nodiscard]] const QList<float> &testDurVals() const { return m_testDurVals; }
    [[nodiscard]] QVariantList testDurValues() const;
    /// -1 while no row is selected.
    [[nodiscard]] int selectedIndex() const { return m_selectedIndex; }
    /// An index outside the rows selects none.
    void select(int index);
    [[nodiscard]] bool isOpen() const { return m_open; }

    /// Shows the picker with the row of the current duration selected.
    Q_INVOKABLE void open();
    /// Stores the selected duration when it differs from the current one, then closes.
    Q_INVOKABLE void okAction();
    /// Closes without storing anything.
    Q_INVOKABLE void closeAction();

Q_SIGNALS:
    void selectedIndexChanged();
    void openedChanged();

private:
    void setOpen(bool open);

    QList<float> m_testDurVals;
    int m_selectedIndex{-1};
    bool m_open{false};
};
