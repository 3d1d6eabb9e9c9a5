#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/**
 * @brief DES-CBC with PKCS#7 padding, as the phrase lists and the user record are stored.
 *
 * Enciphered text files hold the Base64 of the cipher bytes. The key is the first 8 bytes of
 * the key text's UTF-8 form (zero-filled when shorter); one fixed vector serves every file.
 * Every failure (bad Base64, a wrong key, a plain text that is not UTF-8) yields no result.
 */
class VoCryptor {
public:
    enum Operation { Encipher = 0, Decipher = 1 };

    /// Key of the shipped phrase lists.
    static const QString contentKey;
    /// Key of the user record file.
    static const QString recordKey;

    static std::optional<QString> encrypt(const QString &text, Operation operation,
                                          const QString &key);
    [[nodiscard]] static QString encryptWithDES(const QString &plain, const QString &key);
    [[nodiscard]] static std::optional<QString> decryptWithDES(const QString &cipherText,
                                                               const QString &key);

    static std::optional<QByteArray> encryptData(const QByteArray &data, Operation operation,
                                                 const QString &key);
    [[nodiscard]] static std::optional<QByteArray> decryptData(const QByteArray &data,
                                                               const QString &key);

    // File forms, used to prepare content; each returns false when reading, deciphering or
    // writing failed. Writes are atomic.
    static bool encryptWithDESForFile(const QString &plistPath, const QString &key);
    static bool encryptWithDESForPlistFile(const QString &plistPath, const QString &outputPath,
                                           const QString &key);
    static bool decryptWithDESForFile(const QString &path, const QString &key);
    static bool encryptWithDESForDataFile(const QString &inputPath, const QString &outputPath,
                                          const QString &key);
    static bool decryptWithDESForDataFile(const QString &inputPath, const QString &outputPath,
                                          const QString &key);
};
