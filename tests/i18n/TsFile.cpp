#include "TsFile.h"

#include <QFile>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

QList<TsMessage> readTsFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot open " << qPrintable(path);
        return {};
    }
    QList<TsMessage> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto name = xml.name();
        if (name == u"name") {
            context = xml.readElementText();
        } else if (name == u"message") {
            messages.append({context,
                             {},
                             xml.attributes().value(QLatin1String("numerus")) == u"yes",
                             true,
                             {}});
        } else if (name == u"source") {
            messages.last().source = xml.readElementText();
        } else if (name == u"translation") {
            const auto type = xml.attributes().value(QLatin1String("type"));
            messages.last().finished = type.isEmpty();
            if (messages.last().numerus) {
                while (xml.readNextStartElement())
                    messages.last().translations.append(xml.readElementText());
            } else {
                messages.last().translations.append(xml.readElementText());
            }
        } else if (name != u"TS" && name != u"context") {
            xml.skipCurrentElement();
        }
    }
    if (xml.hasError())
        ADD_FAILURE() << qPrintable(path) << ": " << qPrintable(xml.errorString());
    return messages;
}

QString tsFileOf(const QString &code)
{
    return QStringLiteral(TOLVANE_I18N_DIR "/tolvane_%1.ts").arg(code);
}
