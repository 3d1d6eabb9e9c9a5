#include "VerificationDecoder.h"

#include "content/VoLog.h"
#include "speech/DecoderLog.h"
#include "speech/SpeechLog.h"

#include <QFile>

namespace {

constexpr char alignmentSearch[] = "align";
constexpr char phoneLoopSearch[] = "phones";
constexpr long loopModelsPerFrame = 250;

/// The base phones of the English model, silence aside.
constexpr const char *modelPhones[] = {"AA", "AE", "AH", "AO", "AW", "AY", "B",  "CH", "D",  "DH",
                                       "EH", "ER", "EY", "F",  "G",  "HH", "IH", "IY", "JH", "K",
                                       "L",  "M",  "N",  "NG", "OW", "OY", "P",  "R",  "S",  "SH",
                                       "T",  "TH", "UH", "UW", "V",  "W",  "Y",  "Z",  "ZH"};

} // namespace

std::optional<VerificationDecoder> VerificationDecoder::create(const QString &acousticModelPath,
                                                               const QString &dictionaryPath,
                                                               Role role)
{
    const QByteArray hmm = QFile::encodeName(acousticModelPath);
    const QByteArray dict = QFile::encodeName(dictionaryPath);
    const DecoderLogGuard log;
    // Silence stays in so that frame numbers are the recording's. The beams are narrower than
    // the recogniser's: a phrase whose sounds are not in the recording loses every path, which
    // is itself the clearest verdict. Every phone is a word here, so the word-exit beam is as
    // wide as the others: narrower, it lost the paths of some readings of their own phrase.
    const sphinx::ConfigPtr config(
        cmd_ln_init(nullptr, ps_args(), TRUE, "-hmm", hmm.constData(), "-dict", dict.constData(),
                    "-remove_silence", "no", "-remove_noise", "no", "-dither", "no", "-bestpath",
                    "no", "-beam", "1e-80", "-pbeam", "1e-80", "-wbeam", "1e-80", nullptr));
    if (!config) {
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("the checking decoder's options do not parse"));
        return std::nullopt;
    }
    // The loop's many one-phone words would keep over a thousand models alive a frame; the few
    // hundred best decide its path as well, in two thirds of the time.
    if (role == Role::PhoneLoop)
        cmd_ln_set_int_r(config.get(), "-maxhmmpf", loopModelsPerFrame);
    sphinx::DecoderPtr decoder(ps_init(config.get()));
    if (!decoder) {
        VoLog::write(lcSpeech(), VoLog::Error,
                     QStringLiteral("the checking decoder could not start with the acoustic "
                                    "model %1 and the dictionary %2")
                         .arg(acousticModelPath, dictionaryPath));
        return std::nullopt;
    }
    return VerificationDecoder(std::move(decoder));
}

bool VerificationDecoder::setGrammar(const char *search, const QString &grammar)
{
    // Parsed here rather than by ps_set_jsgf_string(), which never frees the parsed grammar.
    const QByteArray text = grammar.toUtf8();
    const sphinx::JsgfPtr parsed(jsgf_parse_string(text.constData(), nullptr));
    jsgf_rule_t *rule = parsed ? jsgf_get_public_rule(parsed.get()) : nullptr;
    const sphinx::FsgModelPtr model(
        rule ? jsgf_build_fsg(parsed.get(), rule, ps_get_logmath(m_decoder.get()),
                              cmd_ln_float32_r(ps_get_config(m_decoder.get()), "-lw"))
             : nullptr);
    if (!model || ps_set_fsg(m_decoder.get(), search, model.get()) < 0) {
        VoLog::write(
            lcSpeech(), VoLog::Error,
            QStringLiteral("the grammar of the %1 search was refused").arg(QLatin1String(search)));
        return false;
    }
    return true;
}

bool VerificationDecoder::setUpPhoneLoop()
{
    QStringList words;
    for (const char *phone : modelPhones) {
        const QString word = QLatin1String(loopWordPrefix) + QLatin1String(phone);
        if (!addPhoneWord(word, QLatin1String(phone)))
            return false;
        words.append(word);
    }
    return setGrammar(phoneLoopSearch,
                      QStringLiteral("#JSGF V1.0;\ngrammar loop;\npublic <loop> = ( %1 )+ ;\n")
                          .arg(words.join(QStringLiteral(" | "))));
}

VerificationDecoder::VerificationDecoder(sphinx::DecoderPtr decoder)
    : m_decoder(std::move(decoder))
{}

bool VerificationDecoder::addPhoneWord(const QString &word, const QString &phone)
{
    if (m_words.contains(word))
        return true;
    if (ps_add_word(m_decoder.get(), word.toUtf8().constData(), phone.toUtf8().constData(), FALSE) <
        0)
        return false;
    m_words.append(word);
    return true;
}

std::optional<QList<AlignedSegment>> VerificationDecoder::align(const QString &grammar,
                                                                const std::vector<int16_t> &samples)
{
    if (grammar != m_grammar) {
        m_grammar.clear();
        if (!setGrammar(alignmentSearch, grammar))
            return std::nullopt;
        m_grammar = grammar;
    }
    if (!decode(alignmentSearch, samples))
        return std::nullopt;
    int32 score = 0;
    if (!ps_get_hyp(m_decoder.get(), &score))
        return std::nullopt;
    return segments();
}

QList<AlignedSegment> VerificationDecoder::phoneLoop(const std::vector<int16_t> &samples)
{
    if (!m_loopReady)
        m_loopReady = setUpPhoneLoop();
    if (!m_loopReady || !decode(phoneLoopSearch, samples))
        return {};
    return segments();
}

bool VerificationDecoder::decode(const char *search, const std::vector<int16_t> &samples)
{
    if (ps_set_search(m_decoder.get(), search) < 0 || ps_start_utt(m_decoder.get()) < 0)
        return false;
    // The whole recording at once, so that the batch normalisation sees all of it.
    const int frames = ps_process_raw(m_decoder.get(), samples.data(), samples.size(), FALSE, TRUE);
    return ps_end_utt(m_decoder.get()) >= 0 && frames > 0;
}

QList<AlignedSegment> VerificationDecoder::segments()
{
    QList<AlignedSegment> found;
    // The iterator frees itself when ps_seg_next() runs past the last segment.
    for (ps_seg_t *segment = ps_seg_iter(m_decoder.get()); segment;
         segment = ps_seg_next(segment)) {
        AlignedSegment aligned;
        aligned.word = QString::fromUtf8(ps_seg_word(segment));
        ps_seg_frames(segment, &aligned.startFrame, &aligned.endFrame);
        int32 acoustic = 0;
        int32 language = 0;
        int32 backoff = 0;
        ps_seg_prob(segment, &acoustic, &language, &backoff);
        aligned.acousticScore = acoustic;
        found.append(aligned);
    }
    return found;
}
