#include "MainViewController.h"

#include "UserRecord.h"

MainViewController::MainViewController(QObject *parent)
    : QObject(parent)
    , m_experienceTotal(totalExperience())
    , m_recordNotice(takeRecordNotice())
{}

void MainViewController::refresh()
{
    const qint64 total = totalExperience();
    if (total == m_experienceTotal)
        return;
    m_experienceTotal = total;
    Q_EMIT experienceTotalChanged();
}

void MainViewController::dismissRecordNotice()
{
    if (m_recordNotice.isEmpty())
        return;
    m_recordNotice.clear();
    Q_EMIT recordNoticeChanged();
}
