#pragma once

#include <QString>
#include <QVariantMap>

/**
 * @brief What a language model generation reports: a failure, or success as code 0.
 *
 * Success carries the generated files in userInfo under "LMFile", "DictionaryFile", "LMPath"
 * and "DictionaryPath"; a file failure names its file under "FilePath".
 */
struct LanguageModelError {
    enum Code {
        Success = 0,
        FileReadFailed = 256,
        FileWriteFailed = 512,
        NoContent = 6000,
    };
    /// The domain of success and of file failures; the no-content failure has none.
    static constexpr char generalDomain[] = "Tolvane";

    QString domain;
    int code{Success};
    QString description;
    QVariantMap userInfo;

    [[nodiscard]] bool succeeded() const { return code == Success; }
};
