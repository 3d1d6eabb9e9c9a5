#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <functional>

/**
 * @brief The microphone check that the speaking screens make when they appear: on the desktop a
 * missing input device counts as access denied, and the view shows the alert texts given here.
 *
 * "Open Settings" opens the system's sound settings; where the desktop has none it is absent.
 */
class MicrophonePermission : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool denied READ isDenied NOTIFY deniedChanged)
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(QString cancelTitle READ cancelTitle CONSTANT)
    Q_PROPERTY(QString openSettingsTitle READ openSettingsTitle CONSTANT)
    Q_PROPERTY(bool canOpenSettings READ canOpenSettings CONSTANT)
public:
    /// Says whether an input device exists.
    using DeviceProbe = std::function<bool()>;
    /// Opens the sound settings; empty where the desktop has none.
    using SettingsOpener = std::function<void()>;

    explicit MicrophonePermission(QObject *parent = nullptr);
    MicrophonePermission(DeviceProbe probe, SettingsOpener opener, QObject *parent = nullptr);

    /// Looks for a microphone again; true when access is denied and the alert is due.
    Q_INVOKABLE bool check();
    Q_INVOKABLE void openSettings();

    [[nodiscard]] bool isDenied() const { return m_denied; }
    [[nodiscard]] QString message() const { return tr("Microphone Access Denied"); }
    [[nodiscard]] QString cancelTitle() const { return tr("Cancel"); }
    [[nodiscard]] QString openSettingsTitle() const { return tr("Open Settings"); }
    [[nodiscard]] bool canOpenSettings() const { return static_cast<bool>(m_opener); }

    /// The desktop's own sound settings, or an empty opener where none is found.
    [[nodiscard]] static SettingsOpener systemSoundSettings();

Q_SIGNALS:
    void deniedChanged();

private:
    DeviceProbe m_probe;
    SettingsOpener m_opener;
    bool m_denied{false};
};
