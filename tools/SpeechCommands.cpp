#include "CommandLine.h"
#include "audio/AudioDecodeStatus.h"
#include "audio/SpectrumImage.h"
#include "audio/VoAudioUtil.h"
#include "speech/FloatText.h"
#include "speech/FrontEndFraming.h"
#include "speech/LogPowerSpectrum.h"
#include "speech/PhraseAssessment.h"
#include "speech/VoCommandArray.h"
#include "speech/VoLanguageModelTrainer.h"
#include "speech/VoPSRecognizer.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString hmmOption = QStringLiteral("--hmm");

/// The acoustic model folder: --hmm, else the one the app ships beside the program.
QString acousticModelPath(const ParsedArguments &parsed)
{
    return parsed.values.value(hmmOption, VoLanguageModelTrainer().englishAcousticModelPath());
}

/// Generates the model files named `name` in `folder`; the failure's text when it fails.
QString generateModel(const QStringList &words, const QString &name, const QString &folder,
                      const QString &acousticModel, QVariantMap &files)
{
    VoLanguageModelTrainer trainer;
    trainer.setLmBasePath(folder);
    const LanguageModelError result =
        trainer.generateLanguageModelFromArray(words, name, acousticModel);
    if (!result.succeeded())
        return result.description.isEmpty() ? QStringLiteral("error %1").arg(result.code)
                                            : result.description;
    files = result.userInfo;
    return {};
}

QJsonObject wordJson(const QVariantMap &word)
{
    QJsonObject json = QJsonObject::fromVariantMap(word);
    // Single-precision values print as the float they are, not as its widened double.
    for (const QString &key : {QStringLiteral("logProbability"), QStringLiteral("lmWeightFactor")})
        json.insert(key, shortestFloatText(word.value(key).toFloat()).toDouble());
    return json;
}

/// The check as a table: one row per word, its verdict, goodness, frames and weakest sound.
void printVerification(const CommandLine &command, const ReadingVerification &check)
{
    if (!check.succeeded) {
        command.out << "check: not made (" << check.note << ")\n";
        return;
    }
    command.out << "check: goodness " << QString::number(check.goodness, 'f', 1)
                << ", speech beyond the phrase "
                << QString::number(100.0 * check.unmatchedSpeech, 'f', 0) << " %"
                << (check.aligned ? "" : ", the phrase's sounds could not be aligned") << '\n';
    command.out << QStringLiteral("%1 %2 %3 %4 %5\n")
                       .arg(QStringLiteral("word"), -16)
                       .arg(QStringLiteral("verdict"), -11)
                       .arg(QStringLiteral("goodness"), 9)
                       .arg(QStringLiteral("frames"), -10)
                       .arg(QStringLiteral("weakest sound"));
    for (const WordVerification &word : check.words) {
        const QString frames =
            word.startFrame < 0 ? QStringLiteral("-")
                                : QStringLiteral("%1-%2").arg(word.startFrame).arg(word.endFrame);
        QString weakest;
        if (!word.weakestPhone.isEmpty())
            weakest = QStringLiteral("\"%1\" /%2/ (%3)")
                          .arg(word.weakestLetters, word.weakestIpa, word.weakestPhone);
        command.out
            << QStringLiteral("%1 %2 %3 %4 %5\n")
                   .arg(word.word, -16)
                   .arg(QLatin1String(word.judged ? verdictName(word.verdict) : "not judged"), -11)
                   .arg(word.judged ? QString::number(word.goodness, 'f', 1) : QStringLiteral("-"),
                        9)
                   .arg(frames, -10)
                   .arg(weakest)
                   .trimmed()
            << '\n';
    }
}

QJsonObject verificationJson(const ReadingVerification &check)
{
    QJsonArray words;
    for (const WordVerification &word : check.words) {
        QJsonObject json{{QStringLiteral("word"), word.word},
                         {QStringLiteral("judged"), word.judged},
                         {QStringLiteral("verdict"), QLatin1String(verdictName(word.verdict))},
                         {QStringLiteral("goodness"), word.goodness},
                         {QStringLiteral("startFrame"), word.startFrame},
                         {QStringLiteral("endFrame"), word.endFrame}};
        if (!word.weakestPhone.isEmpty())
            json.insert(QStringLiteral("weakestSound"),
                        QJsonObject{{QStringLiteral("phone"), word.weakestPhone},
                                    {QStringLiteral("ipa"), word.weakestIpa},
                                    {QStringLiteral("letters"), word.weakestLetters}});
        words.append(json);
    }
    QJsonObject json{{QStringLiteral("checked"), check.succeeded},
                     {QStringLiteral("aligned"), check.aligned},
                     {QStringLiteral("goodness"), check.goodness},
                     {QStringLiteral("unmatchedSpeech"), check.unmatchedSpeech},
                     {QStringLiteral("words"), words}};
    if (!check.succeeded)
        json.insert(QStringLiteral("note"), check.note);
    return json;
}

void printAssessment(const CommandLine &command, const PhraseAssessment &assessment)
{
    command.out << "hypothesis: " << assessment.hypothesis << '\n';
    for (const QVariantMap &word : assessment.wordsInfo)
        command.out << "word " << word.value(QStringLiteral("word")).toString() << " frames "
                    << word.value(QStringLiteral("startFrame")).toLongLong() << '-'
                    << word.value(QStringLiteral("endFrame")).toLongLong() << " probability "
                    << shortestFloatText(word.value(QStringLiteral("logProbability")).toFloat())
                    << " (log " << word.value(QStringLiteral("probability")).toInt()
                    << ") acoustic " << word.value(QStringLiteral("acousticScore")).toLongLong()
                    << " lm " << word.value(QStringLiteral("lmScore")).toLongLong() << '\n';
    command.out << "score: " << shortestFloatText(assessment.score) << '\n';
    command.out << "mark: " << assessment.mark << "/10\n";
    for (auto advice = assessment.advices.cbegin(); advice != assessment.advices.cend(); ++advice)
        command.out << "advice " << advice.key() << ": " << advice.value().toString() << '\n';
    printVerification(command, assessment.verification);
}

void printAssessmentJson(const CommandLine &command, const PhraseAssessment &assessment)
{
    QJsonArray words;
    for (const QVariantMap &word : assessment.wordsInfo)
        words.append(wordJson(word));
    const QJsonObject json{
        {QStringLiteral("hypothesis"), assessment.hypothesis},
        {QStringLiteral("words"), words},
        // Qt writes doubles in their shortest form; going through the float's own shortest
        // text keeps 60.000004 from printing as 60.000003814697266.
        {QStringLiteral("score"), shortestFloatText(assessment.score).toDouble()},
        {QStringLiteral("mark"), assessment.mark},
        {QStringLiteral("advice"), QJsonObject::fromVariantMap(assessment.advices)},
        {QStringLiteral("verification"), verificationJson(assessment.verification)},
    };
    command.out << QJsonDocument(json).toJson(QJsonDocument::Compact) << '\n';
}

} // namespace

int runLmCommand(const CommandLine &command)
{
    const ParsedArguments parsed = ParsedArguments::parse(
        command.arguments, {QStringLiteral("--name"), QStringLiteral("--out"), hmmOption});
    if (!parsed.error.isEmpty())
        return command.usageError(QStringLiteral("lm: ") + parsed.error);
    const QString name = parsed.values.value(QStringLiteral("--name"));
    const QString folder = parsed.values.value(QStringLiteral("--out"));
    if (name.isEmpty() || folder.isEmpty() || parsed.positional.isEmpty())
        return command.usageError(
            QStringLiteral("lm needs --name N --out DIR and at least one word"));
    if (!QDir().mkpath(folder))
        return command.machineFailure(QStringLiteral("lm: can not make the folder %1").arg(folder));
    QVariantMap files;
    const QString error =
        generateModel(parsed.positional, name, folder, acousticModelPath(parsed), files);
    if (!error.isEmpty())
        return command.fail(QStringLiteral("lm: ") + error);
    command.out << files.value(QStringLiteral("LMPath")).toString() << '\n'
                << files.value(QStringLiteral("DictionaryPath")).toString() << '\n';
    return 0;
}

int runAssessCommand(const CommandLine &command)
{
    const QString jsonFlag = QStringLiteral("--json");
    const QString verboseFlag = QStringLiteral("--verbose");
    const ParsedArguments parsed = ParsedArguments::parse(
        command.arguments, {QStringLiteral("--text"), QStringLiteral("--ipa"), hmmOption},
        {jsonFlag, verboseFlag});
    if (!parsed.error.isEmpty())
        return command.usageError(QStringLiteral("assess: ") + parsed.error);
    const QString text = parsed.values.value(QStringLiteral("--text"));
    if (text.isEmpty() || parsed.positional.size() != 1)
        return command.usageError(QStringLiteral("assess needs --text PHRASE and one recording"));
    const QString recording = parsed.positional.first();
    if (!QFileInfo(recording).isFile())
        return command.fail(QStringLiteral("assess: no recording at %1").arg(recording));

    // The recogniser's traces and the decoder's own log, for finding out why a recording
    // scores as it does.
    VoPSRecognizer::setVerboseRecognizer(parsed.flags.contains(verboseFlag));
    VoPSRecognizer::setVerboseDecoder(parsed.flags.contains(verboseFlag));
    const PhraseAssessment assessment = assessRecording(
        text, parsed.values.value(QStringLiteral("--ipa")), recording, acousticModelPath(parsed));
    // A recording that did not decode has been logged, in one line naming the file.
    if (assessment.failure == PhraseAssessment::Failure::Recording)
        return ExitStatus::BadInput;
    if (!assessment.succeeded())
        return command.fail(QStringLiteral("assess: ") + assessment.error);
    if (parsed.flags.contains(jsonFlag))
        printAssessmentJson(command, assessment);
    else
        printAssessment(command, assessment);
    return 0;
}

// The picture is drawn from the decoded recording with the acoustic model's front end, without
// recognising: no phrase is needed, and the frames are the ones a recognition would make.
int runSpectrumCommand(const CommandLine &command)
{
    const QString pngOption = QStringLiteral("--png");
    const ParsedArguments parsed =
        ParsedArguments::parse(command.arguments, {pngOption, hmmOption});
    if (!parsed.error.isEmpty())
        return command.usageError(QStringLiteral("spectrum: ") + parsed.error);
    const QString png = parsed.values.value(pngOption);
    if (parsed.positional.size() != 1 || png.isEmpty())
        return command.usageError(QStringLiteral("spectrum needs one recording and --png OUT"));
    const QString recording = parsed.positional.first();

    if (!QFileInfo(recording).isFile())
        return command.fail(QStringLiteral("spectrum: no recording at %1").arg(recording));
    std::vector<int16_t> samples;
    const auto longest =
        static_cast<size_t>(VoPSRecognizer::longestRecordingSeconds * VoCommandArray::sampleRate);
    const int32_t status = VoAudioUtil::decodeSpeechSamples(recording, samples, longest + 1);
    // The decoder has said what went wrong, in one line naming the file.
    if (status != 0 && status != AudioDecodeStatus::tooLarge)
        return ExitStatus::BadInput;
    if (status == AudioDecodeStatus::tooLarge)
        return command.fail(QStringLiteral("spectrum: %1 is longer than %2 s")
                                .arg(recording)
                                .arg(VoPSRecognizer::longestRecordingSeconds));
    const QString acousticModel = acousticModelPath(parsed);
    const std::optional<FrontEndFraming> framing = FrontEndFraming::ofAcousticModel(acousticModel);
    if (!framing)
        return command.fail(
            QStringLiteral("spectrum: no usable acoustic model at %1").arg(acousticModel));

    const AudioPowerSpectrumInfo spectrum =
        logPowerSpectrum(samples, framing->frameCount(samples.size()), *framing);
    const QImage image = spectrumImage(spectrum);
    if (image.isNull())
        return command.fail(QStringLiteral("spectrum: %1 holds no frame").arg(recording));
    if (!image.save(png, "PNG"))
        return command.machineFailure(QStringLiteral("spectrum: can not write %1").arg(png));
    command.out << spectrum.frameCount << " frames, max log power "
                << shortestFloatText(static_cast<float>(spectrum.maxPower)) << '\n';
    return 0;
}
