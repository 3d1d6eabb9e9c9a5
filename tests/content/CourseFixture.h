#pragma once

#include "QtPrinters.h"
#include "content/AppCommon.h"
#include "content/VoCryptor.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

/// A course written into a temporary folder the way the build writes the real one: plain
/// pkgInfo, phrasesInfo enciphered with the content key, one folder per category id.
class CourseFixture {
public:
    [[nodiscard]] QString root() const { return m_dir.path(); }

    void writeFile(const QString &relativePath, const QByteArray &contents) const
    {
        const QString path = m_dir.filePath(relativePath);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
        file.write(contents);
    }

    void addCategory(int id, const QString &name, const QJsonObject &nameTrans,
                     const QJsonArray &phrases) const
    {
        const QString folder = QString::number(id);
        const QJsonObject info{{u"id"_s, id}, {u"name"_s, name}, {u"nameTrans"_s, nameTrans}};
        writeFile(folder + u"/pkgInfo"_s, QJsonDocument(info).toJson());
        writeFile(folder + u"/phrasesInfo"_s,
                  VoCryptor::encryptWithDES(QString::fromUtf8(QJsonDocument(phrases).toJson()),
                                            VoCryptor::contentKey)
                      .toUtf8());
    }

    /// Three categories whose ids sort differently as text and as numbers: 10 (phrases 12 and
    /// 13, the second without "phon" and "wTrans"), 2 (phrase 20, with a "de" entry) and 9 (no
    /// phrases, no name translations).
    void addSampleCategories() const
    {
        addCategory(
            10, u"Begrüßung"_s,
            {{u"en"_s, u"Greetings"_s}, {u"fr"_s, u"Salutations"_s}, {u"de"_s, u"Hallo!"_s}},
            {QJsonObject{{u"id"_s, 12},
                         {u"txt"_s, u"Guten Morgen!"_s},
                         {u"phon"_s, u"ˈɡuːtn̩ ˈmɔʁɡn̩"_s},
                         {u"wTrans"_s,
                          QJsonObject{{u"en"_s, u"Good morning!"_s}, {u"fr"_s, u"Bonjour !"_s}}}},
             QJsonObject{{u"id"_s, 13}, {u"txt"_s, u"Wie geht's?"_s}}});
        addCategory(2, u"Im Café"_s, {{u"en"_s, u"At the café"_s}},
                    {QJsonObject{{u"id"_s, 20},
                                 {u"txt"_s, u"Einen Kaffee, bitte."_s},
                                 {u"wTrans"_s, QJsonObject{{u"en"_s, u"A coffee, please."_s},
                                                           {u"de"_s, u"Einen Kaffee bitte!"_s}}}}});
        addCategory(9, u"Zahlen"_s, {}, {});
    }

private:
    QTemporaryDir m_dir;
};
