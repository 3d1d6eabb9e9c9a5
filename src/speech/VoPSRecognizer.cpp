#include "VoPSRecognizer.h"

#include "DecoderLog.h"
#include "FrontEndFraming.h"
#include "LogPowerSpectrum.h"
#include "SpeechLog.h"
#include "VoCommandArray.h"
#include "audio/VoAudioUtil.h"
#include "audio/VoTimer.h"
#include "content/VoLog.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <cstdio>

/// @brief Seconds since the start of one recognition, from the lap timer's laps.
class RecognitionClock {
public:
    RecognitionClock() { m_timer.startTimer(); }
    double elapsed()
    {
        m_total += m_timer.getSpentTime();
        return m_total;
    }

private:
    VoTimer m_timer;
    double m_total{0.0};
};

namespace {

bool verboseRecognizer = false;

// This release no longer names utterances. The release the progress lines come from numbered
// them per decoder from 000000000, and every recognition here has a decoder of its own.
constexpr char utteranceId[] = "000000000";

// This release keeps a segment's language-weight factor to itself; the record still carries the
// key, with the neutral factor.
constexpr float unreportedWeightFactor = 1.0F;

constexpr long ditherSeed = 1;

struct FileClose {
    void operator()(FILE *file) const { std::fclose(file); }
};

void trace(const QString &text)
{
    if (verboseRecognizer)
        QTextStream(stdout) << text;
}

void logElapsed(const char *format, RecognitionClock &clock)
{
    VoLog::write(lcSpeech(), VoLog::Progress, QString::asprintf(format, clock.elapsed()));
}

/// Front-end settings beyond the option list, applied to the parsed configuration.
void configureFrontEnd(cmd_ln_t *config)
{
    // The decoder the system was designed for kept every frame; this release drops the frames
    // its voice detector takes for silence unless told not to, which would shift every frame
    // number away from the recording's.
    cmd_ln_set_boolean_r(config, "-remove_silence", FALSE);
    // With every frame kept, a stretch of digital zeros (a muted microphone) reaches the search
    // as features of no energy at all, which it reads as a word. Dither of 1/2 bit gives such
    // stretches the faint noise of a real room. The seed is fixed, and every recognition starts
    // its own decoder, which seeds the generator afresh: the same recording still gives the
    // same result every time.
    cmd_ln_set_boolean_r(config, "-dither", TRUE);
    cmd_ln_set_int_r(config, "-seed", ditherSeed);
}

} // namespace

VoPSRecognizer::VoPSRecognizer() = default;
VoPSRecognizer::~VoPSRecognizer() = default;

void VoPSRecognizer::setVerboseRecognizer(bool on)
{
    verboseRecognizer = on;
}

void VoPSRecognizer::setVerboseDecoder(bool on)
{
    setDecoderLogVerbose(on);
}

std::optional<DecoderArguments>
VoPSRecognizer::setUpCommandArray(const VoCommandArray &commands, bool secondItemIsEmpty,
                                  const QString &languageModelPath, const QString &dictionaryPath,
                                  const QString &acousticModelPath, bool isJSGF)
{
    std::optional<DecoderArguments> arguments = DecoderArguments::fromCommandArray(
        commands.commandArrayForLanguageModel(languageModelPath, dictionaryPath, acousticModelPath,
                                              isJSGF),
        secondItemIsEmpty);
    if (!arguments)
        trace(QStringLiteral("Initial Pocketsphinx command failed because there aren't any "
                             "arguments in the command, stopping.\n"));
    return arguments;
}

sphinx::DecoderPtr VoPSRecognizer::initializeDecoder(const QString &languageModelPath,
                                                     const QString &dictionaryPath,
                                                     const QString &acousticModelPath,
                                                     bool languageModelIsJSGF)
{
    // The decoder library logs to standard error unless told otherwise, on every decoder start.
    const DecoderLogGuard log;
    std::optional<DecoderArguments> arguments =
        setUpCommandArray(VoCommandArray(), false, languageModelPath, dictionaryPath,
                          acousticModelPath, languageModelIsJSGF);
    if (!arguments) {
        trace(QStringLiteral("Something was wrong with the commands for this recogniser "
                             "session, returning.\n"));
        return nullptr;
    }
    const sphinx::ConfigPtr config(cmd_ln_parse_r(
        nullptr, arguments->definitions.data(), arguments->argc(), arguments->argv.data(), FALSE));
    if (!config) {
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("the decoder's options do not parse: %1")
                         .arg(arguments->commandArray.join(u' ')));
        return nullptr;
    }
    configureFrontEnd(config.get());
    // The decoder takes its own reference to the configuration.
    sphinx::DecoderPtr decoder(ps_init(config.get()));
    if (!decoder)
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("the decoder could not start with the model %1, the "
                                    "dictionary %2 and the acoustic model %3")
                         .arg(languageModelPath, dictionaryPath, acousticModelPath));
    return decoder;
}

bool VoPSRecognizer::acceptsLength(size_t sampleCount, const QString &source)
{
    const double seconds = static_cast<double>(sampleCount) / VoCommandArray::sampleRate;
    if (seconds <= longestRecordingSeconds)
        return true;
    VoLog::write(lcSpeech(), VoLog::Error,
                 QStringLiteral("the recording %1 lasts %2 s, longer than the %3 s the "
                                "recogniser takes; not recognised")
                     .arg(source)
                     .arg(seconds)
                     .arg(longestRecordingSeconds));
    return false;
}

void VoPSRecognizer::runRecognitionOnWavFileAtPath(const QString &wavPath,
                                                   const QString &languageModelPath,
                                                   const QString &dictionaryPath,
                                                   const QString &acousticModelPath,
                                                   bool languageModelIsJSGF)
{
    RecognitionClock clock;
    const sphinx::DecoderPtr decoder = initializeDecoder(languageModelPath, dictionaryPath,
                                                         acousticModelPath, languageModelIsJSGF);
    if (!decoder)
        return;
    logElapsed("\ninitialized decoder in %f seconds", clock);
    if (ps_start_utt(decoder.get()) < 0) {
        VoLog::write(
            lcSpeech(), VoLog::Error,
            QStringLiteral("the decoder could not start an utterance for %1").arg(wavPath));
        return;
    }

    AudioDataInfo audioDataInfo;
    if (VoAudioUtil::decodeAudioDataFromFile(wavPath, audioDataInfo) != 0) {
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral(" can not decode audio data from the file: %1").arg(wavPath));
        return;
    }
    std::vector<int16_t> samples = VoAudioUtil::getAudioDataShortForByte(audioDataInfo);
    if (!acceptsLength(samples.size(), wavPath))
        return;
    m_audioDataInfo = std::move(audioDataInfo);
    m_audioData = std::move(samples);
    logElapsed("\n decoded the audio data in %f seconds", clock);

    recognizeUtterance(decoder.get(), clock);
}

void VoPSRecognizer::runRecognitionOnSamples(std::vector<int16_t> samples,
                                             const QString &languageModelPath,
                                             const QString &dictionaryPath,
                                             const QString &acousticModelPath,
                                             bool languageModelIsJSGF)
{
    if (!acceptsLength(samples.size(), QStringLiteral("in memory")))
        return;
    RecognitionClock clock;
    const sphinx::DecoderPtr decoder = initializeDecoder(languageModelPath, dictionaryPath,
                                                         acousticModelPath, languageModelIsJSGF);
    if (!decoder)
        return;
    logElapsed("\ninitialized decoder in %f seconds", clock);
    if (ps_start_utt(decoder.get()) < 0) {
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("the decoder could not start an utterance"));
        return;
    }
    m_audioData = std::move(samples);
    recognizeUtterance(decoder.get(), clock);
}

void VoPSRecognizer::recognizeUtterance(ps_decoder_t *decoder, RecognitionClock &clock)
{
    // The whole recording in one call, so that the decoder sizes its buffers once and
    // normalises the features over the whole utterance.
    const int framesSearched =
        ps_process_raw(decoder, m_audioData.data(), m_audioData.size(), FALSE, TRUE);
    logElapsed("\n processed the raw data in %f seconds", clock);
    ps_end_utt(decoder);

    generateLogPowerSpectrumData(decoder,
                                 framesSearched > 0 ? static_cast<uint64_t>(framesSearched) : 0);
    logElapsed("\n get log power spectrum in %f seconds", clock);

    int32 bestScore = 0;
    const char *hypothesis = ps_get_hyp(decoder, &bestScore);
    m_hypothesis = hypothesis ? QString::fromUtf8(hypothesis) : QString();
    VoLog::write(lcSpeech(), VoLog::Progress,
                 QStringLiteral("\n Pocketsphinx heard \"%1\" with a score of (%2) and an "
                                "utterance ID of %3.")
                     .arg(m_hypothesis)
                     .arg(ps_get_prob(decoder))
                     .arg(QLatin1String(utteranceId)));

    getEveryWordProb(decoder);
    logElapsed("\n get the porb of every word in %f seconds", clock);
}

// From the samples as they were recorded: the decoder's dither is left out, so digital silence
// stays at 0.
void VoPSRecognizer::generateLogPowerSpectrumData(ps_decoder_t *decoder, uint64_t frameCount)
{
    m_powerSpectrumInfo = logPowerSpectrum(m_audioData, frameCount,
                                           FrontEndFraming::fromConfig(ps_get_config(decoder)));
}

void VoPSRecognizer::getEveryWordProb(ps_decoder_t *decoder)
{
    m_wordsInfo.clear();
    logmath_t *logmath = ps_get_logmath(decoder);
    // The iterator frees itself when ps_seg_next() runs past the last segment.
    for (ps_seg_t *segment = ps_seg_iter(decoder); segment; segment = ps_seg_next(segment)) {
        int startFrame = 0;
        int endFrame = 0;
        ps_seg_frames(segment, &startFrame, &endFrame);
        int32 acousticScore = 0;
        int32 lmScore = 0;
        int32 backoff = 0;
        const int32 probability = ps_seg_prob(segment, &acousticScore, &lmScore, &backoff);
        const auto linear = static_cast<float>(logmath_exp(logmath, probability));
        const QString word = QString::fromUtf8(ps_seg_word(segment));
        m_wordsInfo.append(QVariantMap{
            {QStringLiteral("word"), word},
            {QStringLiteral("startFrame"), qint64{startFrame}},
            {QStringLiteral("endFrame"), qint64{endFrame}},
            {QStringLiteral("acousticScore"), qint64{acousticScore}},
            {QStringLiteral("lmScore"), qint64{lmScore}},
            {QStringLiteral("probability"), int{probability}},
            {QStringLiteral("logProbability"), linear},
            {QStringLiteral("lmWeightFactor"), unreportedWeightFactor},
        });
        trace(QString::asprintf("%s (%d:%d) P(w|o) = %f ascr = %d lscr = %d lback = %d lwf= %f\n",
                                qUtf8Printable(word), startFrame, endFrame,
                                static_cast<double>(linear), acousticScore, lmScore, backoff,
                                static_cast<double>(unreportedWeightFactor)));
    }
}

int VoPSRecognizer::runRecognitionOnRawFileAtPath(const QString &rawPath,
                                                  const QString &languageModelPath,
                                                  const QString &dictionaryPath,
                                                  const QString &acousticModelPath)
{
    if (!acceptsLength(static_cast<size_t>(QFileInfo(rawPath).size() / 2), rawPath))
        return 1;
    const DecoderLogGuard log;
    const QByteArray hmm = QFile::encodeName(acousticModelPath);
    const QByteArray lm = QFile::encodeName(languageModelPath);
    const QByteArray dict = QFile::encodeName(dictionaryPath);
    const sphinx::ConfigPtr config(cmd_ln_init(nullptr, ps_args(), TRUE, "-hmm", hmm.constData(),
                                               "-lm", lm.constData(), "-dict", dict.constData(),
                                               nullptr));
    if (!config)
        return 1;
    configureFrontEnd(config.get());
    const sphinx::DecoderPtr decoder(ps_init(config.get()));
    if (!decoder)
        return 1;
    const std::unique_ptr<FILE, FileClose> file(
        std::fopen(QFile::encodeName(rawPath).constData(), "rb"));
    if (!file || ps_decode_raw(decoder.get(), file.get(), -1) < 0)
        return 1;
    int32 bestScore = 0;
    const char *hypothesis = ps_get_hyp(decoder.get(), &bestScore);
    if (!hypothesis)
        return 1;
    QTextStream(stdout) << "Recognized: " << hypothesis << '\n';
    getEveryWordProb(decoder.get());
    return 0;
}
