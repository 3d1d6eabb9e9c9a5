#pragma once

#include <QString>
#include <QStringList>

/**
 * @brief Which part of a written word, and of its IPA, each phone of its pronunciation stands
 * for, so that a weak phone can be named as the learner reads the phrase ("ö" in "Brötchen").
 *
 * Both are found the same way: the text is cut into spelling units (German letter groups such as
 * "sch" or "ei"; IPA symbols with their marks, such as "aɪ̯" or "øː"), and the units are laid
 * over the phones in order, each unit taking up to three phones or none, at the least cost of
 * phones a unit does not usually spell. A text that cannot be laid over the phones gives empty
 * parts.
 */
namespace SoundSpelling {

/// For each phone, the letters of the word that spell it, as the word writes them.
[[nodiscard]] QStringList lettersOfPhones(const QString &word, const QStringList &phones);
/// For each phone, the symbols of the word's IPA transcription that stand for it, without
/// stress marks.
[[nodiscard]] QStringList ipaOfPhones(const QString &ipaWord, const QStringList &phones);

} // namespace SoundSpelling
