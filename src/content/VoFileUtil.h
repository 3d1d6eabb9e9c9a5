#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>
#include <optional>

/**
 * @brief File helpers of the content store: enciphered property lists, the app's folders,
 * sizes, and whole-file reads and atomic writes.
 */
class VoFileUtil {
public:
    /// With a key, the file is the Base64 of an enciphered XML property list; without one, a
    /// plain property list. No dictionary (and one error line) when it cannot be read or parsed.
    static std::optional<QVariantMap> getDicFromEncryptedPlist(const QString &path,
                                                               const QString &key);

    /// The app's data folder, which stands for the Documents folder; ends with "/".
    [[nodiscard]] static QString getDocumentsDirectory();
    /// The app's cache folder; ends with "/".
    [[nodiscard]] static QString getCachesDirectory();

    /// Bytes; 0 when the file does not exist.
    [[nodiscard]] static double getFileSizeAtPath(const QString &path);
    /// Megabytes of everything below the folder; 0 when it does not exist.
    [[nodiscard]] static float getFolderSizeAtPath(const QString &path);
    /// Deletes every entry directly inside the folder; errors are ignored.
    static void removeFileInFolder(const QString &path);

    [[nodiscard]] static std::optional<QByteArray> readFile(const QString &path);
    /// Whether a write waits until its data is on the disk, beyond the reach of a power cut.
    enum class Sync { No, ToDisk };
    /// Replaces the file whole or not at all, so a crash mid-write leaves the old file intact.
    static bool writeFileAtomically(const QString &path, const QByteArray &contents,
                                    Sync sync = Sync::No);
};
