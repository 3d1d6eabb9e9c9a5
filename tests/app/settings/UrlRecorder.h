#pragma once

#include <QDesktopServices>
#include <QList>
#include <QObject>
#include <QUrl>

/// Takes the web and mail links the app opens while it lives, instead of the desktop.
class UrlRecorder : public QObject {
    Q_OBJECT

public:
    UrlRecorder()
    {
        for (const char *scheme : schemes)
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "open");
    }
    ~UrlRecorder() override
    {
        for (const char *scheme : schemes)
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }
    QList<QUrl> urls;

public Q_SLOTS:
    void open(const QUrl &url) { urls.append(url); }

private:
    static constexpr const char *schemes[] = {"https", "http", "mailto"};
};
