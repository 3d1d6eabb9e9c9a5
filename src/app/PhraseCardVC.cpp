#include "PhraseCardVC.h"

#include "Preferences.h"
#include "UserRecord.h"
#include "audio/PlaySound.h"
#include "content/AppCommon.h"
#include "content/VoLog.h"

#include <QFileInfo>
#include <utility>

namespace {

const QList<PhraseInfo *> noPhrases;

} // namespace

PhraseCardVC::PhraseCardVC(QObject *parent)
    : QObject(parent)
{
    connect(&Preferences::instance(), &Preferences::languageTypeChanged, this, [this] {
        Q_EMIT titleChanged();
        Q_EMIT translationChanged();
    });
}

PhraseCardVC::~PhraseCardVC() = default;

void PhraseCardVC::open(const QString &categoryId, int index)
{
    m_categoryInfo = contentStore().category(categoryId);
    if (m_categoryInfo)
        loadPhrases(categoryId);
    Q_EMIT titleChanged();

    if (index < 0 || index >= phrases().size()) {
        VoLog::write(
            lcApp(), VoLog::Error,
            QStringLiteral("No phrase %1 in category \"%2\" to show").arg(index).arg(categoryId));
        m_audioPlayer.reset();
        m_phraseInfo = nullptr;
        Q_EMIT phraseChanged();
        Q_EMIT translationChanged();
        setLastItemEnabled(false);
        setNextItemEnabled(false);
        return;
    }
    showPhrase(phrases().at(index));
    setLastItemEnabled(index >= 1);
    setNextItemEnabled(index < phrases().size() - 1);
}

void PhraseCardVC::showPhrase(PhraseInfo *phrase)
{
    m_phraseInfo = phrase;
    Q_EMIT phraseChanged();
    Q_EMIT translationChanged();
    play();
}

void PhraseCardVC::play()
{
    if (!m_phraseInfo)
        return;
    m_audioPlayer = playSound(soundPath(*m_phraseInfo), 0);
    // Counted as a listen even when the file gives no sound: the learner asked to hear it.
    incrementUserInfoCounter(UserInfoKey::listenCount);
}

void PhraseCardVC::lastItem()
{
    if (!m_phraseInfo)
        return;
    const int i = m_phraseInfo->indexInCategory;
    if (i >= 1)
        showPhrase(phrases().at(i - 1));
    const int now = currentIndex();
    setLastItemEnabled(now >= 1);
    if (now < phrases().size() - 1)
        setNextItemEnabled(true);
}

void PhraseCardVC::nextItem()
{
    if (!m_phraseInfo)
        return;
    const int i = m_phraseInfo->indexInCategory;
    if (i < phrases().size() - 1)
        showPhrase(phrases().at(i + 1));
    const int now = currentIndex();
    setNextItemEnabled(now < phrases().size() - 1);
    if (now >= 1)
        setLastItemEnabled(true);
}

void PhraseCardVC::toggleLook()
{
    m_phraseHidden = !m_phraseHidden;
    Q_EMIT phraseHiddenChanged();
}

bool PhraseCardVC::beginRecord()
{
    if (!m_phraseInfo || m_recordPressed)
        return true;
    stopAudio();
    if (m_permission.check())
        return false;
    m_recordPressed = !m_audioRecorder.begin(*m_phraseInfo).isEmpty();
    return true;
}

void PhraseCardVC::endRecord()
{
    if (!std::exchange(m_recordPressed, false))
        return;
    const std::shared_ptr<SpectrumCompView> comparison = m_audioRecorder.end();
    if (!comparison)
        return;
    comparison->setTestedWordScoreVisible(false);
    incrementUserInfoCounter(UserInfoKey::readCount);
    Q_EMIT comparisonShown();
}

void PhraseCardVC::stopPlaying()
{
    stopAudio();
    m_recordPressed = false;
    m_audioRecorder.stop();
}

void PhraseCardVC::stopAudio()
{
    if (m_audioPlayer)
        m_audioPlayer->stop();
}

QString PhraseCardVC::title() const
{
    return m_categoryInfo ? translatedName(*m_categoryInfo, Preferences::instance().languageType())
                          : QString();
}

int PhraseCardVC::currentIndex() const
{
    return m_phraseInfo ? m_phraseInfo->indexInCategory : -1;
}

int PhraseCardVC::phraseCount() const
{
    return static_cast<int>(phrases().size());
}

QString PhraseCardVC::phraseText() const
{
    return m_phraseInfo ? foreignText(*m_phraseInfo) : QString();
}

QString PhraseCardVC::phonetics() const
{
    return m_phraseInfo ? m_phraseInfo->phon : QString();
}

QString PhraseCardVC::translation() const
{
    return m_phraseInfo ? ::translation(*m_phraseInfo, Preferences::instance().languageType())
                        : QString();
}

QUrl PhraseCardVC::image() const
{
    if (!m_phraseInfo)
        return {};
    const QString path = imagePath(*m_phraseInfo);
    return QFileInfo::exists(path) ? QUrl::fromLocalFile(path) : QUrl();
}

QString PhraseCardVC::lookImage() const
{
    return m_phraseHidden ? QStringLiteral("btn-no-look") : QStringLiteral("btn-look");
}

void PhraseCardVC::setLastItemEnabled(bool enabled)
{
    setItemButton(m_lastItemBtn, QStringLiteral("btn-last"), enabled);
}

void PhraseCardVC::setNextItemEnabled(bool enabled)
{
    setItemButton(m_nextItemBtn, QStringLiteral("btn-next"), enabled);
}

void PhraseCardVC::setItemButton(ItemButton &button, const QString &image, bool enabled)
{
    const QString shown = enabled ? image : image + u'2';
    if (button.image == shown)
        return;
    button = {shown, enabled};
    Q_EMIT buttonsChanged();
}

const QList<PhraseInfo *> &PhraseCardVC::phrases() const
{
    return m_categoryInfo && m_categoryInfo->phraseInfoList ? *m_categoryInfo->phraseInfoList
                                                            : noPhrases;
}
