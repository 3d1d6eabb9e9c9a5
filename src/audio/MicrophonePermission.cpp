#include "MicrophonePermission.h"

#include "AudioInputFactory.h"
#include "AudioLog.h"
#include "content/VoLog.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

MicrophonePermission::MicrophonePermission(QObject *parent)
    : MicrophonePermission(hasDefaultAudioInput, systemSoundSettings(), parent)
{}

MicrophonePermission::MicrophonePermission(DeviceProbe probe, SettingsOpener opener,
                                           QObject *parent)
    : QObject(parent)
    , m_probe(std::move(probe))
    , m_opener(std::move(opener))
{}

bool MicrophonePermission::check()
{
    const bool denied = !m_probe();
    if (denied != m_denied) {
        m_denied = denied;
        Q_EMIT deniedChanged();
    }
    if (denied)
        VoLog::write(lcAudio(), VoLog::Error, QStringLiteral("no microphone: recording is off"));
    return denied;
}

void MicrophonePermission::openSettings()
{
    if (m_opener)
        m_opener();
}

MicrophonePermission::SettingsOpener MicrophonePermission::systemSoundSettings()
{
#if defined(Q_OS_WIN)
    return [] {
        QDesktopServices::openUrl(QUrl(QStringLiteral("ms-settings:sound")));
    };
#elif defined(Q_OS_MACOS)
    return [] {
        QDesktopServices::openUrl(
            QUrl(QStringLiteral("x-apple.systempreferences:com.apple.preference.sound")));
    };
#else
    // The sound panel of the desktops that have one, in the order they are most often found.
    const QList<QStringList> candidates{
        {QStringLiteral("gnome-control-center"), QStringLiteral("sound")},
        {QStringLiteral("systemsettings"), QStringLiteral("kcm_pulseaudio")},
        {QStringLiteral("pavucontrol")},
    };
    for (const QStringList &command : candidates) {
        const QString program = QStandardPaths::findExecutable(command.first());
        if (!program.isEmpty())
            return [program, arguments = command.mid(1)] {
                QProcess::startDetached(program, arguments);
            };
    }
    return {};
#endif
}
