#pragma once

#include "TestDurPickerView.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

/**
 * @brief The settings screen: playback speed, mother language, test duration, the cache, and
 * the links to the feedback mail and the store's review page.
 *
 * Every value is read from and written to Preferences, so other screens follow a change through
 * Preferences' signals without being reloaded.
 */
class SettingViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(float playSpeed READ playSpeed WRITE setPlaySpeed NOTIFY playSpeedChanged)
    Q_PROPERTY(float minPlaySpeed READ minPlaySpeed CONSTANT)
    Q_PROPERTY(float maxPlaySpeed READ maxPlaySpeed CONSTANT)
    Q_PROPERTY(float playSpeedStep READ playSpeedStep CONSTANT)
    Q_PROPERTY(QStringList languageNames READ languageNames CONSTANT)
    Q_PROPERTY(int languageIndex READ languageIndex WRITE setLanguageIndex NOTIFY languageChanged)
    Q_PROPERTY(float testDuration READ testDuration NOTIFY testDurationChanged)
    Q_PROPERTY(TestDurPickerView *durationPicker READ durationPicker CONSTANT)
    Q_PROPERTY(float cacheSize READ cacheSize NOTIFY cacheSizeChanged)

public:
    // The player's audible range, in half its steps so that 0.5 and 1.5 can be chosen too.
    [[nodiscard]] static constexpr float minPlaySpeed() { return 0.2F; }
    [[nodiscard]] static constexpr float maxPlaySpeed() { return 2.0F; }
    [[nodiscard]] static constexpr float playSpeedStep() { return 0.1F; }

    explicit SettingViewController(QObject *parent = nullptr);

    [[nodiscard]] float playSpeed() const;
    /// Clamped to the player's range and rounded to a step.
    void setPlaySpeed(float speed);

    /// Each language named in itself, in the order of supportedLanguageCodes().
    [[nodiscard]] static QStringList languageNames();
    [[nodiscard]] int languageIndex() const;
    /// An index outside the list changes nothing.
    void setLanguageIndex(int index);

    [[nodiscard]] float testDuration() const;
    [[nodiscard]] TestDurPickerView *durationPicker() { return &m_durationPicker; }

    /// Megabytes in the cache folder, as of the last refresh.
    [[nodiscard]] float cacheSize() const { return m_cacheSize; }
    Q_INVOKABLE void refreshCacheSize();
    Q_INVOKABLE void clearCache();

    /// Opens a mail to the feedback address.
    Q_INVOKABLE bool sendFeedback();
    /// Opens the store's review page; the first time that works it earns the review points.
    Q_INVOKABLE bool openReviewPage();

Q_SIGNALS:
    void playSpeedChanged();
    void languageChanged();
    void testDurationChanged();
    void cacheSizeChanged();

private:
    TestDurPickerView m_durationPicker;
    float m_cacheSize{0};
};
