#include "ModelPhones.h"

#include "content/VoFileUtil.h"

#include <QtEndian>
#include <array>
#include <cstring>

namespace {

// The binary layout documents itself: "BMDF", a byte-order word that reads 1 in the writer's
// order, the length of a text description, the description, then ten counts of which the
// first is the number of base phones, then the base phones' names, each ended by a zero byte.
constexpr qsizetype magicSize = 4;
constexpr qsizetype wordSize = 4;
constexpr qsizetype countWords = 10;

class Reader {
public:
    explicit Reader(const QByteArray &bytes)
        : m_bytes(bytes)
    {}

    bool skip(qsizetype size)
    {
        if (size < 0 || size > m_bytes.size() - m_position)
            return false;
        m_position += size;
        return true;
    }
    std::optional<quint32> word()
    {
        if (wordSize > m_bytes.size() - m_position)
            return std::nullopt;
        std::array<char, wordSize> raw{};
        std::memcpy(raw.data(), m_bytes.constData() + m_position, raw.size());
        m_position += wordSize;
        return m_swapped ? qFromBigEndian<quint32>(raw.data())
                         : qFromLittleEndian<quint32>(raw.data());
    }
    std::optional<QString> name()
    {
        const qsizetype end = m_bytes.indexOf('\0', m_position);
        if (end < 0)
            return std::nullopt;
        QString text = QString::fromLatin1(m_bytes.mid(m_position, end - m_position));
        m_position = end + 1;
        return text;
    }
    void setSwapped(bool swapped) { m_swapped = swapped; }

private:
    const QByteArray &m_bytes;
    qsizetype m_position{0};
    bool m_swapped{false};
};

} // namespace

std::optional<QStringList> readModelPhones(const QString &mdefPath, QString &error)
{
    const std::optional<QByteArray> bytes = VoFileUtil::readFile(mdefPath);
    if (!bytes) {
        error = QStringLiteral("cannot read the model definition %1").arg(mdefPath);
        return std::nullopt;
    }
    error = QStringLiteral("%1 is not a binary model definition").arg(mdefPath);
    if (!bytes->startsWith("BMDF"))
        return std::nullopt;
    Reader reader(*bytes);
    reader.skip(magicSize);
    const std::optional<quint32> order = reader.word();
    if (!order || (*order != 1 && qbswap(*order) != 1))
        return std::nullopt;
    reader.setSwapped(*order != 1);
    const std::optional<quint32> descriptionSize = reader.word();
    if (!descriptionSize || !reader.skip(*descriptionSize))
        return std::nullopt;
    const std::optional<quint32> phoneCount = reader.word();
    if (!phoneCount || *phoneCount == 0 || !reader.skip((countWords - 1) * wordSize))
        return std::nullopt;

    QStringList phones;
    for (quint32 i = 0; i < *phoneCount; ++i) {
        std::optional<QString> phone = reader.name();
        if (!phone || phone->isEmpty())
            return std::nullopt;
        phones.append(*phone);
    }
    error.clear();
    return phones;
}
