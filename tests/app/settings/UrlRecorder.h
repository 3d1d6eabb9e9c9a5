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
        for (const QString &scheme : schemes())
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~UrlRecorder() override
    {
        for (const QString &scheme : schemes())
            QDesktopServices::unsetUrlHandler(scheme);
    }
    UrlRecorder(const UrlRecorder &) = delete;
    UrlRecorder &operator=(const UrlRecorder &) = delete;

    QList<QUrl> urls;

public Q_SLOTS:
    void open(const QUrl &url) { urls.append(url); }

private:
    static QStringList schemes()
    {
        return {QStringLiteral("https"), QStringLiteral("http"), QStringLiteral("mailto")};
    }
};
