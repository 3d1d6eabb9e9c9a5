#include "SpokenSentence.h"

#include "audio/AudioHandles.h"
#include "audio/Mono16kResampler.h"

#include <QFile>
#include <QProcess>
#include <QSet>
#include <QStringList>
#include <QTextStream>
#include <vector>

namespace {

const QString installedDictionary =
    QStringLiteral("/usr/share/pocketsphinx/model/en-us/cmudict-en-us.dict");

bool speak(const QString &speechPath, QString &error)
{
    QProcess espeak;
    espeak.start(QStringLiteral("espeak-ng"),
                 {QStringLiteral("-v"), QStringLiteral("en-us"), QStringLiteral("-s"),
                  QStringLiteral("140"), QStringLiteral("-w"), speechPath,
                  QString::fromLatin1(SpokenSentence::text)});
    if (!espeak.waitForFinished(60000) || espeak.exitCode() != 0) {
        error = QStringLiteral("espeak-ng failed: ") + espeak.errorString();
        return false;
    }
    return true;
}

/// espeak-ng speaks at 22050 Hz; the recogniser takes 16 kHz.
bool writeAt16k(const QString &speechPath, const QString &wavPath, QString &error)
{
    SF_INFO inInfo{};
    const audio::SndfilePtr in = audio::openSoundFile(speechPath, SFM_READ, inInfo);
    if (!in || inInfo.channels != 1) {
        error = QStringLiteral("cannot read the spoken sentence");
        return false;
    }
    std::vector<float> speech(static_cast<size_t>(inInfo.frames));
    sf_readf_float(in.get(), speech.data(), inInfo.frames);
    std::vector<int16_t> samples;
    Mono16kResampler resampler(inInfo.samplerate, [&samples](std::span<const int16_t> chunk) {
        samples.insert(samples.end(), chunk.begin(), chunk.end());
        return 0;
    });
    if (resampler.push(speech) != 0 || resampler.finish() != 0) {
        error = resampler.error();
        return false;
    }
    SF_INFO outInfo{};
    outInfo.samplerate = Mono16kResampler::outputRate;
    outInfo.channels = 1;
    outInfo.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    const audio::SndfilePtr out = audio::openSoundFile(wavPath, SFM_WRITE, outInfo);
    if (!out ||
        sf_write_short(out.get(), samples.data(), static_cast<sf_count_t>(samples.size())) !=
            static_cast<sf_count_t>(samples.size())) {
        error = QStringLiteral("cannot write ") + wavPath;
        return false;
    }
    return true;
}

bool writeText(const QString &path, const QString &text, QString &error)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        error = QStringLiteral("cannot write ") + path;
        return false;
    }
    return true;
}

/// Every pronunciation of the sentence's words, alternates included.
bool writeDictionary(const QString &path, QString &error)
{
    QFile installed(installedDictionary);
    if (!installed.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("cannot read ") + installedDictionary;
        return false;
    }
    const QStringList words = QString::fromLatin1(SpokenSentence::text).split(u' ');
    const QSet<QString> wanted(words.begin(), words.end());
    QString lines;
    QTextStream stream(&installed);
    for (QString line = stream.readLine(); !line.isNull(); line = stream.readLine()) {
        const QString entry = line.section(u' ', 0, 0);
        if (wanted.contains(entry.section(u'(', 0, 0)))
            lines += line + u'\n';
    }
    return writeText(path, lines, error);
}

/// Each word equally likely alone; the sentence's own word pairs far likelier.
bool writeLanguageModel(const QString &path, QString &error)
{
    QStringList words = QString::fromLatin1(SpokenSentence::text).split(u' ');
    words.removeDuplicates();
    QString unigrams = QStringLiteral("-99.0000 <s> -0.3010\n-0.9031 </s> 0.0000\n");
    for (const QString &word : words)
        unigrams += QStringLiteral("-0.9031 %1 -0.3010\n").arg(word);
    const QStringList sentence =
        (QStringLiteral("<s> ") + QString::fromLatin1(SpokenSentence::text) +
         QStringLiteral(" </s>"))
            .split(u' ');
    QString bigrams;
    for (qsizetype i = 1; i < sentence.size(); ++i)
        bigrams += QStringLiteral("-0.1000 %1 %2\n").arg(sentence[i - 1], sentence[i]);
    const QString arpa = QStringLiteral("\\data\\\nngram 1=%1\nngram 2=%2\n\n\\1-grams:\n%3\n"
                                        "\\2-grams:\n%4\n\\end\\\n")
                             .arg(words.size() + 2)
                             .arg(sentence.size() - 1)
                             .arg(unigrams, bigrams);
    return writeText(path, arpa, error);
}

} // namespace

std::optional<SpokenSentence> SpokenSentence::make(const QString &folder, QString &error)
{
    SpokenSentence sentence{folder + QStringLiteral("/sentence.wav"),
                            folder + QStringLiteral("/sentence.dic"),
                            folder + QStringLiteral("/sentence.arpa")};
    const QString speechPath = folder + QStringLiteral("/espeak.wav");
    if (!speak(speechPath, error) || !writeAt16k(speechPath, sentence.wavPath, error) ||
        !writeDictionary(sentence.dictionaryPath, error) ||
        !writeLanguageModel(sentence.languageModelPath, error))
        return std::nullopt;
    return sentence;
}
