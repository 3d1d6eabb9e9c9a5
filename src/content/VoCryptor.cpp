#include "VoCryptor.h"

#include "PlistCodec.h"
#include "TextHelpers.h"
#include "VoFileUtil.h"

#include <array>
#include <nettle/cbc.h>
#include <nettle/des.h>

const QString VoCryptor::contentKey = QStringLiteral("tlvn5283");
const QString VoCryptor::recordKey = QStringLiteral("tlvn5280");

namespace {

constexpr std::array<uint8_t, DES_BLOCK_SIZE> initialisationVector{'6', '1', '9', '3',
                                                                   '4', '0', '7', '2'};

std::optional<des_ctx> makeContext(const QString &key)
{
    std::array<uint8_t, DES_KEY_SIZE> keyBytes{};
    const QByteArray utf8 = key.toUtf8();
    std::copy_n(utf8.constData(), std::min<qsizetype>(utf8.size(), DES_KEY_SIZE), keyBytes.begin());
    des_ctx context{};
    // Nettle refuses the few weak DES keys; no shipped key is one, but a typed one may be.
    if (!des_set_key(&context, keyBytes.data()))
        return std::nullopt;
    return context;
}

void desEncrypt(const void *context, size_t length, uint8_t *dst, const uint8_t *src)
{
    des_encrypt(static_cast<const des_ctx *>(context), length, dst, src);
}

void desDecrypt(const void *context, size_t length, uint8_t *dst, const uint8_t *src)
{
    des_decrypt(static_cast<const des_ctx *>(context), length, dst, src);
}

uint8_t *bytes(QByteArray &array)
{
    return reinterpret_cast<uint8_t *>(array.data());
}
const uint8_t *bytes(const QByteArray &array)
{
    return reinterpret_cast<const uint8_t *>(array.constData());
}

} // namespace

std::optional<QByteArray> VoCryptor::encryptData(const QByteArray &data, Operation operation,
                                                 const QString &key)
{
    auto context = makeContext(key);
    if (!context)
        return std::nullopt;
    std::array<uint8_t, DES_BLOCK_SIZE> iv = initialisationVector;

    if (operation == Encipher) {
        // PKCS#7: always pad, so a multiple of 8 gains a whole block.
        const auto padding = static_cast<char>(DES_BLOCK_SIZE - data.size() % DES_BLOCK_SIZE);
        QByteArray plain = data + QByteArray(padding, padding);
        QByteArray cipher(plain.size(), Qt::Uninitialized);
        cbc_encrypt(&*context, desEncrypt, DES_BLOCK_SIZE, iv.data(),
                    static_cast<size_t>(plain.size()), bytes(cipher), bytes(plain));
        return cipher;
    }

    if (data.isEmpty() || data.size() % DES_BLOCK_SIZE != 0)
        return std::nullopt;
    QByteArray plain(data.size(), Qt::Uninitialized);
    cbc_decrypt(&*context, desDecrypt, DES_BLOCK_SIZE, iv.data(), static_cast<size_t>(data.size()),
                bytes(plain), bytes(data));
    const auto padding = static_cast<uint8_t>(plain.back());
    if (padding == 0 || padding > DES_BLOCK_SIZE)
        return std::nullopt;
    for (qsizetype i = plain.size() - padding; i < plain.size(); ++i) {
        if (static_cast<uint8_t>(plain[i]) != padding)
            return std::nullopt;
    }
    plain.chop(padding);
    return plain;
}

std::optional<QByteArray> VoCryptor::decryptData(const QByteArray &data, const QString &key)
{
    return encryptData(data, Decipher, key);
}

std::optional<QString> VoCryptor::encrypt(const QString &text, Operation operation,
                                          const QString &key)
{
    if (operation == Encipher) {
        auto cipher = encryptData(text.toUtf8(), Encipher, key);
        if (!cipher)
            return std::nullopt;
        return QString::fromLatin1(cipher->toBase64());
    }
    auto cipher = TextHelpers::base64Bytes(text);
    if (!cipher)
        return std::nullopt;
    auto plain = encryptData(*cipher, Decipher, key);
    if (!plain)
        return std::nullopt;
    return TextHelpers::fromUtf8Strict(*plain);
}

QString VoCryptor::encryptWithDES(const QString &plain, const QString &key)
{
    return encrypt(plain, Encipher, key).value_or(QString());
}

std::optional<QString> VoCryptor::decryptWithDES(const QString &cipherText, const QString &key)
{
    return encrypt(cipherText, Decipher, key);
}

bool VoCryptor::encryptWithDESForFile(const QString &plistPath, const QString &key)
{
    return encryptWithDESForPlistFile(plistPath, plistPath + QStringLiteral(".des"), key);
}

bool VoCryptor::encryptWithDESForPlistFile(const QString &plistPath, const QString &outputPath,
                                           const QString &key)
{
    auto dictionary = VoFileUtil::getDicFromEncryptedPlist(plistPath, QString());
    if (!dictionary)
        return false;
    auto plain = TextHelpers::fromUtf8Strict(PlistCodec::toXml(*dictionary));
    if (!plain)
        return false;
    auto cipher = encrypt(*plain, Encipher, key);
    return cipher && VoFileUtil::writeFileAtomically(outputPath, cipher->toUtf8());
}

bool VoCryptor::decryptWithDESForFile(const QString &path, const QString &key)
{
    auto text = VoFileUtil::readFile(path);
    if (!text)
        return false;
    auto cipher = TextHelpers::fromUtf8Strict(*text);
    auto plain = cipher ? decryptWithDES(*cipher, key) : std::nullopt;
    return plain && VoFileUtil::writeFileAtomically(path + QStringLiteral(".src"), plain->toUtf8());
}

bool VoCryptor::encryptWithDESForDataFile(const QString &inputPath, const QString &outputPath,
                                          const QString &key)
{
    auto data = VoFileUtil::readFile(inputPath);
    auto cipher = data ? encryptData(*data, Encipher, key) : std::nullopt;
    return cipher && VoFileUtil::writeFileAtomically(outputPath, *cipher);
}

bool VoCryptor::decryptWithDESForDataFile(const QString &inputPath, const QString &outputPath,
                                          const QString &key)
{
    auto data = VoFileUtil::readFile(inputPath);
    auto plain = data ? encryptData(*data, Decipher, key) : std::nullopt;
    return plain && VoFileUtil::writeFileAtomically(outputPath, *plain);
}
