#include "RatingPrompt.h"

#include "ExternalLinks.h"

#include <QQmlEngine>

namespace {
const QString versionKey = QStringLiteral("RatingPrompt/version");
const QString usesKey = QStringLiteral("RatingPrompt/uses");
const QString settledKey = QStringLiteral("RatingPrompt/settled");
} // namespace

RatingPrompt::RatingPrompt(QObject *parent)
    : QObject(parent)
    , m_settings(QStringLiteral("Tolvane"), QStringLiteral("Tolvane"))
{}

RatingPrompt &RatingPrompt::instance()
{
    static RatingPrompt prompt(nullptr);
    return prompt;
}

RatingPrompt *RatingPrompt::create(QQmlEngine *, QJSEngine *)
{
    QQmlEngine::setObjectOwnership(&instance(), QQmlEngine::CppOwnership);
    return &instance();
}

void RatingPrompt::configure(Config config)
{
    m_config = std::move(config);
    if (m_settings.value(versionKey).toString() == m_config.appVersion)
        return;
    m_settings.setValue(versionKey, m_config.appVersion);
    m_settings.setValue(usesKey, 0);
    m_settings.setValue(settledKey, false);
}

void RatingPrompt::logUse()
{
    m_settings.setValue(usesKey, usesCount() + 1);
}

int RatingPrompt::usesCount() const
{
    // A damaged count reads as 0, which only delays the question.
    return std::max(0, m_settings.value(usesKey).toInt());
}

bool RatingPrompt::shouldPrompt() const
{
    return !m_config.appVersion.isEmpty() && !m_settings.value(settledKey).toBool() &&
           usesCount() >= m_config.usesUntilPrompt;
}

void RatingPrompt::rate()
{
    settle();
    ExternalLinks::open(m_config.ratingsUrl);
}

void RatingPrompt::later()
{
    m_settings.setValue(usesKey, 0);
}

void RatingPrompt::decline()
{
    settle();
}

void RatingPrompt::settle()
{
    m_settings.setValue(settledKey, true);
}
