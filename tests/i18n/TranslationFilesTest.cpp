#include "TsFile.h"
#include "content/AppCommon.h"

#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString keyOf(const TsMessage &message)
{
    return message.context + u" | "_s + message.source;
}

QSet<QString> placeholders(const QString &text)
{
    static const QRegularExpression marker(u"%[1-9n]"_s);
    QSet<QString> found;
    for (const QRegularExpressionMatch &match : marker.globalMatch(text))
        found.insert(match.captured());
    return found;
}

/// What the sources mark for translation now, read by lupdate as scripts/update-translations
/// runs it.
QList<TsMessage> markedInSources()
{
    QTemporaryDir folder;
    const QString marked = folder.filePath(u"sources.ts"_s);
    QProcess lupdate;
    lupdate.start(QStringLiteral(TOLVANE_LUPDATE),
                  {u"-silent"_s, u"-locations"_s, u"none"_s,
                   QStringLiteral(TOLVANE_SOURCE_DIR "/src"), u"-ts"_s, marked});
    if (!lupdate.waitForFinished(60000) || lupdate.exitCode() != 0)
        ADD_FAILURE() << "lupdate failed: " << lupdate.readAllStandardError().constData();
    return readTsFile(marked);
}

} // namespace

// A text marked in the sources but missing from a language's file reaches that learner in
// English; a translation that drops a placeholder shows a wrong or empty number.
TEST(TranslationFiles, EveryMarkedTextIsTranslatedInEveryLanguageWithItsPlaceholders)
{
    const QList<TsMessage> marked = markedInSources();
    ASSERT_GT(marked.size(), 100);
    QSet<QString> markedKeys;
    for (const TsMessage &message : marked)
        markedKeys.insert(keyOf(message));

    for (const QString &code : supportedLanguageCodes()) {
        if (code == u"en"_s)
            continue;
        QHash<QString, TsMessage> translated;
        for (const TsMessage &message : readTsFile(tsFileOf(code)))
            translated.insert(keyOf(message), message);
        for (const QString &key : markedKeys)
            EXPECT_TRUE(translated.contains(key))
                << qPrintable(code) << ": no \"" << qPrintable(key)
                << "\"; run scripts/update-translations and translate it";
        for (const TsMessage &message : std::as_const(translated)) {
            const QString where = code + u": \""_s + keyOf(message) + u"\""_s;
            EXPECT_TRUE(markedKeys.contains(keyOf(message)))
                << qPrintable(where) << " is no longer used; run scripts/update-translations";
            EXPECT_TRUE(message.finished) << qPrintable(where) << " is unfinished";
            QSet<QString> wanted = placeholders(message.source);
            const bool counted = wanted.remove(u"%n"_s);
            bool showsCount = false;
            for (const QString &form : message.translations) {
                EXPECT_FALSE(form.trimmed().isEmpty()) << qPrintable(where) << " is empty";
                QSet<QString> kept = placeholders(form);
                // A plural form for exactly one may say "one" instead of the number.
                showsCount = kept.remove(u"%n"_s) || showsCount;
                EXPECT_EQ(kept, wanted) << qPrintable(where) << " -> " << qPrintable(form);
            }
            EXPECT_EQ(showsCount, counted) << qPrintable(where) << " loses its number";
        }
    }
}
