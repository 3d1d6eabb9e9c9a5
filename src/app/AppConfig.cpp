#include "AppConfig.h"

#include <QUrlQuery>

namespace AppConfig {

QString appVersion()
{
    return QStringLiteral(TOLVANE_VERSION);
}

QString appId()
{
    return QStringLiteral("1458237904");
}

QString feedbackAddress()
{
    return QStringLiteral("feedback@tolvane.app");
}

QUrl reviewPageUrl()
{
    // The web form of the store link: a desktop opens it in the browser, a phone hands it to
    // the store app.
    return QUrl(QStringLiteral("https://apps.apple.com/app/id") + appId() +
                QStringLiteral("?mt=8&action=write-review"));
}

QUrl feedbackMailUrl()
{
    QUrl url;
    url.setScheme(QStringLiteral("mailto"));
    url.setPath(feedbackAddress());
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("subject"),
                       QStringLiteral("Tolvane %1 feedback").arg(appVersion()));
    url.setQuery(query);
    return url;
}

} // namespace AppConfig
