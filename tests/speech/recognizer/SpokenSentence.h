#pragma once

#include <QString>
#include <optional>

/**
 * @brief An English sentence spoken by espeak-ng as a 16 kHz mono 16-bit WAV file, with a
 * dictionary of its words cut from the installed English dictionary and a small bigram model
 * that walks through the sentence.
 */
struct SpokenSentence {
    static constexpr char text[] = "please open the window and close the door";
    static QString acousticModelPath()
    {
        return QStringLiteral("/usr/share/pocketsphinx/model/en-us/en-us");
    }

    QString wavPath;
    QString dictionaryPath;
    QString languageModelPath;

    /// Writes the three files into the folder; null, with the reason, when a step fails.
    static std::optional<SpokenSentence> make(const QString &folder, QString &error);
};
