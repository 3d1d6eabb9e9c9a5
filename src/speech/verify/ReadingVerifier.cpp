#include "ReadingVerifier.h"

#include "SoundSpelling.h"
#include "content/VoAppCommon.h"
#include "content/VoLog.h"
#include "speech/PronunciationList.h"
#include "speech/RunBeside.h"
#include "speech/SpeechLog.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <random>

namespace {

/// Samples between the decoder's frames: 10 ms at 16 kHz.
constexpr size_t frameShift = 160;

/// One phone of the grammar: which word, which of its pronunciations, which phone.
struct PhonePlace {
    int word{0};
    int alternate{0};
    int phone{0};
};

/// A grammar word stands for one phone at one place, so the alignment's path tells which
/// pronunciation of which word it took, phone by phone. The phone is part of the name because
/// the decoder keeps every word it was ever given.
QString phoneWord(const PhonePlace &place, const QString &phone)
{
    return QStringLiteral("w%1_%2_%3_%4")
        .arg(place.word)
        .arg(place.alternate)
        .arg(place.phone)
        .arg(phone);
}

std::optional<PhonePlace> placeOf(const QString &word)
{
    static const QRegularExpression name(QStringLiteral("^w(\\d+)_(\\d+)_(\\d+)_"));
    const QRegularExpressionMatch match = name.match(word);
    if (!match.hasMatch())
        return std::nullopt;
    return PhonePlace{match.captured(1).toInt(), match.captured(2).toInt(),
                      match.captured(3).toInt()};
}

/// The faint noise of a real room over the recording, so that digital silence reaches the
/// searches as something they can score. Seeded the same every time: the same recording is
/// judged the same.
std::vector<int16_t> dithered(const std::vector<int16_t> &samples, size_t first, size_t end)
{
    std::minstd_rand noise(1);
    std::vector<int16_t> out(end - first);
    for (size_t i = first; i < end; ++i) {
        const int value = samples[i] + static_cast<int>(noise() % 3) - 1;
        out[i - first] = static_cast<int16_t>(std::clamp(value, -32768, 32767));
    }
    return out;
}

/// The part of a recording worth checking: from a little before its first sound to a little
/// after its last, in whole frames. Long silence around a reading otherwise weighs on the
/// utterance's feature normalisation and costs the alignment its path.
struct SpeechSpan {
    size_t first{0};
    size_t end{0};
};

SpeechSpan speechSpan(const std::vector<int16_t> &samples)
{
    constexpr size_t margin = 30;          // frames kept either side: 0.3 s
    constexpr double quietestSound = 30.0; // RMS: about -60 dBFS, above the dither
    constexpr double belowLoudest = 0.01;  // -40 dB from the loudest frame
    const size_t frames = samples.size() / frameShift;
    std::vector<double> rms(frames, 0.0);
    double loudest = 0.0;
    for (size_t f = 0; f < frames; ++f) {
        double sum = 0.0;
        for (size_t i = f * frameShift; i < (f + 1) * frameShift; ++i)
            sum += static_cast<double>(samples[i]) * samples[i];
        rms[f] = std::sqrt(sum / frameShift);
        loudest = std::max(loudest, rms[f]);
    }
    const double threshold = std::max(quietestSound, loudest * belowLoudest);
    const auto sound = [&](double value) {
        return value > threshold;
    };
    const auto firstSound = std::find_if(rms.cbegin(), rms.cend(), sound);
    if (firstSound == rms.cend())
        return {0, samples.size()};
    const auto lastSound = std::find_if(rms.crbegin(), rms.crend(), sound);
    const auto firstFrame = static_cast<size_t>(firstSound - rms.cbegin());
    const size_t lastFrame = frames - 1 - static_cast<size_t>(lastSound - rms.crbegin());
    return {(firstFrame > margin ? firstFrame - margin : 0) * frameShift,
            std::min(samples.size(), (lastFrame + 1 + margin) * frameShift)};
}

/// Calls visit(f) for each of the segment's frames that lie within the first frameCount.
template <typename Visit>
void forEachFrame(const AlignedSegment &segment, int frameCount, Visit visit)
{
    for (int f = std::max(segment.startFrame, 0); f <= segment.endFrame && f < frameCount; ++f)
        visit(static_cast<size_t>(f));
}

/// The free loop's acoustic score spread evenly over each of its segments' frames.
std::vector<double> scorePerFrame(const QList<AlignedSegment> &segments, int frameCount)
{
    std::vector<double> perFrame(static_cast<size_t>(frameCount), 0.0);
    for (const AlignedSegment &segment : segments) {
        const double share = static_cast<double>(segment.acousticScore) / segment.frames();
        forEachFrame(segment, frameCount, [&](size_t f) { perFrame[f] = share; });
    }
    return perFrame;
}

WordVerdict verdictFor(double goodness)
{
    if (goodness >= ReadingVerifier::heardWellGoodness)
        return WordVerdict::HeardWell;
    if (goodness >= ReadingVerifier::missingGoodness)
        return WordVerdict::Unclear;
    return WordVerdict::Missing;
}

/// One word's aligned phones summed up.
struct WordSum {
    /// Alignment minus loop, over the word's frames.
    double difference{0.0};
    int frames{0};
    /// The word's frames in which the free loop heard a sound rather than silence or noise.
    int heardFrames{0};
    /// The pronunciation the alignment took, and its phone that fitted worst.
    int alternate{-1};
    int weakestPhone{-1};
    double weakestGoodness{0.0};
    int startFrame{-1};
    int endFrame{-1};
};

std::vector<WordSum> sumByWord(const QList<AlignedSegment> &alignment,
                               const std::vector<double> &loopScore, const std::vector<bool> &heard,
                               qsizetype wordCount)
{
    std::vector<WordSum> sums(static_cast<size_t>(wordCount));
    const auto frameCount = static_cast<int>(loopScore.size());
    for (const AlignedSegment &segment : alignment) {
        const std::optional<PhonePlace> place = placeOf(segment.word);
        if (!place || place->word >= wordCount)
            continue;
        WordSum &sum = sums[static_cast<size_t>(place->word)];
        double loopSum = 0.0;
        forEachFrame(segment, frameCount, [&](size_t f) {
            loopSum += loopScore[f];
            sum.heardFrames += heard[f] ? 1 : 0;
        });
        const double difference = segment.acousticScore - loopSum;
        const double goodness = difference / segment.frames();
        sum.difference += difference;
        sum.frames += segment.frames();
        sum.alternate = place->alternate;
        if (sum.startFrame < 0)
            sum.startFrame = segment.startFrame;
        sum.endFrame = segment.endFrame;
        if (sum.weakestPhone < 0 || goodness < sum.weakestGoodness) {
            sum.weakestPhone = place->phone;
            sum.weakestGoodness = goodness;
        }
    }
    return sums;
}

WordVerification judgedWord(const QString &text, const QList<QStringList> &pronunciations,
                            const WordSum &sum, const QString &ipaWord)
{
    WordVerification word;
    word.word = text;
    if (pronunciations.isEmpty()) {
        word.judged = false;
        word.verdict = WordVerdict::Unclear;
        return word;
    }
    if (sum.frames == 0) {
        word.goodness = ReadingVerifier::unalignedGoodness;
        word.verdict = WordVerdict::Missing;
        // An unaligned word has no sound that scored.
        return word;
    }
    word.goodness = sum.difference / sum.frames;
    // Laid over what the loop hears as silence, the word was not said, however its sounds fit.
    word.verdict =
        2 * sum.heardFrames < sum.frames ? WordVerdict::Missing : verdictFor(word.goodness);
    word.startFrame = sum.startFrame;
    word.endFrame = sum.endFrame;
    if (word.verdict != WordVerdict::HeardWell) {
        const QStringList &spoken = pronunciations[sum.alternate];
        word.weakestPhone = spoken.value(sum.weakestPhone);
        word.weakestLetters = SoundSpelling::lettersOfPhones(text, spoken).value(sum.weakestPhone);
        if (!ipaWord.isEmpty())
            word.weakestIpa = SoundSpelling::ipaOfPhones(ipaWord, spoken).value(sum.weakestPhone);
    }
    return word;
}

void logCheck(const QString &phrase, int frameCount, const ReadingVerification &check)
{
    QStringList verdicts;
    for (const WordVerification &word : check.words)
        verdicts.append(QStringLiteral("%1 %2 (%3)")
                            .arg(word.word, QLatin1String(verdictName(word.verdict)))
                            .arg(word.goodness, 0, 'f', 1));
    VoLog::write(lcSpeech(), VoLog::Progress,
                 QStringLiteral("\n checked the reading of \"%1\" over %2 frames: goodness %3, "
                                "unmatched speech %4%5; %6")
                     .arg(phrase)
                     .arg(frameCount)
                     .arg(check.goodness, 0, 'f', 1)
                     .arg(check.unmatchedSpeech, 0, 'f', 2)
                     .arg(check.aligned ? QString() : QStringLiteral(", not aligned"),
                          verdicts.join(QStringLiteral(", "))));
}

/// Marks the frames of the segments whose word passes the test.
std::vector<bool> framesOf(const QList<AlignedSegment> &segments, int frameCount,
                           bool (*counts)(const QString &word))
{
    std::vector<bool> marked(static_cast<size_t>(frameCount), false);
    for (const AlignedSegment &segment : segments) {
        if (!counts(segment.word))
            continue;
        forEachFrame(segment, frameCount, [&](size_t f) { marked[f] = true; });
    }
    return marked;
}

/// A phrase aligned to a part of a longer utterance leaves the rest to silence and noise,
/// where the loop still hears sounds.
double unmatchedSpeech(const QList<AlignedSegment> &alignment, const std::vector<bool> &heard)
{
    const auto frameCount = static_cast<int>(heard.size());
    const std::vector<bool> phrase = framesOf(
        alignment, frameCount, [](const QString &word) { return placeOf(word).has_value(); });
    int speech = 0;
    int unmatched = 0;
    for (size_t f = 0; f < heard.size(); ++f) {
        speech += heard[f] || phrase[f] ? 1 : 0;
        unmatched += heard[f] && !phrase[f] ? 1 : 0;
    }
    return speech > 0 ? static_cast<double>(unmatched) / speech : 0.0;
}

/// Gives the aligner a word for every phone of every pronunciation; what went wrong, if anything.
QString addPhoneWords(VerificationDecoder &aligner, const QStringList &words,
                      const QList<QList<QStringList>> &pronunciations)
{
    for (qsizetype w = 0; w < pronunciations.size(); ++w) {
        for (qsizetype a = 0; a < pronunciations[w].size(); ++a) {
            for (qsizetype p = 0; p < pronunciations[w][a].size(); ++p) {
                const QString &phone = pronunciations[w][a][p];
                const PhonePlace place{static_cast<int>(w), static_cast<int>(a),
                                       static_cast<int>(p)};
                if (!aligner.addPhoneWord(phoneWord(place, phone), phone))
                    return QStringLiteral("the phone %1 of \"%2\" is not the model's")
                        .arg(phone, words[w]);
            }
        }
    }
    return {};
}

QString grammarOf(const QList<QList<QStringList>> &pronunciations)
{
    QString rule;
    for (qsizetype w = 0; w < pronunciations.size(); ++w) {
        if (pronunciations[w].isEmpty())
            continue;
        QStringList alternates;
        for (qsizetype a = 0; a < pronunciations[w].size(); ++a) {
            QStringList phones;
            for (qsizetype p = 0; p < pronunciations[w][a].size(); ++p)
                phones.append(
                    phoneWord({static_cast<int>(w), static_cast<int>(a), static_cast<int>(p)},
                              pronunciations[w][a][p]));
            alternates.append(phones.join(u' '));
        }
        rule += QStringLiteral(" ( %1 )").arg(alternates.join(QStringLiteral(" | ")));
    }
    return QStringLiteral("#JSGF V1.0;\ngrammar reading;\npublic <reading> =%1 ;\n").arg(rule);
}

} // namespace

ReadingVerifier::ReadingVerifier(QString acousticModelPath)
    : m_acousticModelPath(std::move(acousticModelPath))
{}

QList<QList<QStringList>> ReadingVerifier::pronunciations(const QStringList &words,
                                                          const QString &dictionaryPath)
{
    if (!m_wholeWords) {
        m_wholeWords.emplace();
        const QString path =
            QDir(m_acousticModelPath).filePath(QLatin1String(wholeWordListFileName));
        QString error;
        if (const auto list = readPronunciationDictionary(path, error)) {
            for (const Pronunciation &entry : *list)
                (*m_wholeWords)[entry.word].append(entry.phones.split(u' '));
        } else {
            VoLog::write(lcSpeech(), VoLog::Error,
                         QStringLiteral("words with umlauts and ß are not checked: %1").arg(error));
        }
    }
    QHash<QString, QList<QStringList>> phrase;
    QString error;
    if (const auto list = readPronunciationDictionary(dictionaryPath, error)) {
        for (const Pronunciation &entry : *list)
            phrase[entry.word].append(entry.phones.split(u' '));
    }
    QList<QList<QStringList>> found;
    for (const QString &word : words) {
        const QString key = word.toUpper();
        found.append(m_wholeWords->contains(key) ? m_wholeWords->value(key) : phrase.value(key));
    }
    return found;
}

ReadingVerification ReadingVerifier::verify(const QString &phrase, const QString &ipa,
                                            const QString &dictionaryPath,
                                            const std::vector<int16_t> &samples)
{
    ReadingVerification result;
    const QStringList words = VoAppCommon::getAllWordFromText(phrase, false);
    const QList<QList<QStringList>> phones = pronunciations(words, dictionaryPath);
    if (std::all_of(phones.cbegin(), phones.cend(), [](const auto &p) { return p.isEmpty(); })) {
        result.note = QStringLiteral("no word of \"%1\" has a pronunciation").arg(phrase);
        return result;
    }
    if (samples.empty()) {
        result.note = QStringLiteral("the recording holds no samples");
        return result;
    }
    if (!m_aligner)
        m_aligner = VerificationDecoder::create(m_acousticModelPath, dictionaryPath,
                                                VerificationDecoder::Role::Alignment);
    if (!m_loop)
        m_loop = VerificationDecoder::create(m_acousticModelPath, dictionaryPath,
                                             VerificationDecoder::Role::PhoneLoop);
    if (!m_aligner || !m_loop) {
        result.note = QStringLiteral("the checking decoder could not start");
        return result;
    }
    if (const QString refused = addPhoneWords(*m_aligner, words, phones); !refused.isEmpty()) {
        result.note = refused;
        return result;
    }

    const SpeechSpan span = speechSpan(samples);
    const std::vector<int16_t> input = dithered(samples, span.first, span.end);
    // The loop costs three times the alignment: it runs on a thread of its own while the
    // alignment runs here.
    std::future<QList<AlignedSegment>> loopDone =
        runBeside([this, &input] { return m_loop->phoneLoop(input); });
    const std::optional<QList<AlignedSegment>> alignment =
        m_aligner->align(grammarOf(phones), input);
    const QList<AlignedSegment> loop = loopDone.get();
    result.succeeded = true;
    result.aligned = alignment.has_value();

    int frameCount = 0;
    for (const AlignedSegment &segment : loop)
        frameCount = std::max(frameCount, segment.endFrame + 1);
    if (alignment) {
        for (const AlignedSegment &segment : *alignment)
            frameCount = std::max(frameCount, segment.endFrame + 1);
    }
    const std::vector<bool> heard = framesOf(loop, frameCount, [](const QString &word) {
        return word.startsWith(QLatin1String(VerificationDecoder::loopWordPrefix));
    });
    const std::vector<WordSum> sums =
        alignment ? sumByWord(*alignment, scorePerFrame(loop, frameCount), heard, words.size())
                  : std::vector<WordSum>(static_cast<size_t>(words.size()));

    const QStringList ipaWords =
        ipa.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    double totalDifference = 0.0;
    int totalFrames = 0;
    for (qsizetype w = 0; w < words.size(); ++w) {
        const WordSum &sum = sums[static_cast<size_t>(w)];
        // The transcription names the same words in the same order, unless it was written
        // otherwise; then its sounds cannot be told apart by word.
        result.words.append(judgedWord(words[w], phones[w], sum,
                                       ipaWords.size() == words.size() ? ipaWords[w] : QString()));
        if (!phones[w].isEmpty()) {
            totalDifference += sum.difference;
            totalFrames += sum.frames;
        }
    }
    result.goodness = totalFrames > 0 ? totalDifference / totalFrames : unalignedGoodness;
    // Frames count from the recording's start, as the recogniser's do.
    const auto skipped = static_cast<int>(span.first / frameShift);
    for (WordVerification &word : result.words) {
        if (word.startFrame >= 0) {
            word.startFrame += skipped;
            word.endFrame += skipped;
        }
    }
    if (alignment)
        result.unmatchedSpeech = unmatchedSpeech(*alignment, heard);
    logCheck(phrase, frameCount, result);
    return result;
}
