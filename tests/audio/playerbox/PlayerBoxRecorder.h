#pragma once

#include "audio/VoPlayerBox.h"

#include <QStringList>

/// Writes down what a player box tells its host, in order: "played", "stopped", "finished",
/// "tick". A missing player shows as "played(null)" and so on.
class PlayerBoxRecorder {
public:
    explicit PlayerBoxRecorder(VoPlayerBox &box)
    {
        const auto note = [this](const char *what, const AudioPlayer *player) {
            events.append(QString::fromLatin1(what) +
                          (player ? QString() : QStringLiteral("(null)")));
        };
        QObject::connect(&box, &VoPlayerBox::played, &box,
                         [note](AudioPlayer *player) { note("played", player); });
        QObject::connect(&box, &VoPlayerBox::stopped, &box,
                         [note](AudioPlayer *player) { note("stopped", player); });
        QObject::connect(&box, &VoPlayerBox::didFinishPlaying, &box,
                         [note](AudioPlayer *player, bool) { note("finished", player); });
        QObject::connect(&box, &VoPlayerBox::periodicTimeObserver, &box,
                         [note](AudioPlayer *player, float) { note("tick", player); });
    }

    /// The events so far with repeated ticks shown once; clears the record.
    QStringList take()
    {
        QStringList squeezed;
        for (const QString &event : std::as_const(events))
            if (squeezed.isEmpty() || event != QStringLiteral("tick") ||
                squeezed.constLast() != event)
                squeezed.append(event);
        events.clear();
        return squeezed;
    }

    QStringList events;
};
