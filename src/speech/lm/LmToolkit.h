#pragma once

#include <QStringList>

class QIODevice;

/**
 * @brief Statistical language-model toolkit: the four steps from a text corpus to an ARPA
 * trigram model, with the classic tools' roles and file formats, called in process.
 *
 * The corpus is white-space separated tokens, normally one sentence a line between "<s>" and
 * "</s>"; lines play no part, the steps read one token stream. Tokens are bytes, not checked as
 * UTF-8; a NUL byte separates them as white space does. Each step reports success; failures are
 * logged (category tolvane.speech.lm) and leave the caller to decide. A positive verbosity adds one
 * progress line (level 8) per step. The steps keep no state between calls, so several may run at
 * once on different files.
 */
namespace lm {

/// Word frequencies: "word count" lines, one per distinct token of the text, in byte order.
/// The table size is a hint. False when the text cannot be read or holds no token.
bool text2wfreq(QIODevice &text, QIODevice &frequencies, int initialTableSize, int verbosity);

/// Vocabulary from frequencies: words with a count above the cutoff (negative: no cutoff), at
/// most vocabularySize of them (negative: no limit; the most frequent win, ties by byte order),
/// written as "##" comment lines and then one word a line in byte order. `records` is a hint
/// of how many frequency lines to expect. A word starting with "##" would read back as a
/// comment, so it is left out (and logged). False on a damaged line or an empty result.
bool wfreq2vocab(QIODevice &frequencies, QIODevice &vocabulary, int cutoff, int vocabularySize,
                 int records, int verbosity);

/**
 * Program entry "text2idngram" with its argument vector (arguments[0] is the program name):
 * -vocab V -idngram OUT -textfile TEXT [-temp_directory TEMPLATE]. 0 on success.
 *
 * OUT gets one 16-byte record per distinct 3-gram of the token stream: three word ids and the
 * count, each 32-bit big-endian, sorted by ids. A word's id is its place in the vocabulary
 * counted from 1; words missing from it get 0. The stream is read as if two unknown words stood
 * before it, so every token ends exactly one 3-gram (see estimateWittenBell). The counting is
 * done in memory; the temporary folder is made from TEMPLATE (its trailing XXXXXX replaced; by
 * default in the system's temporary folder) and removed again.
 */
int text2idngram(const QStringList &arguments);

/**
 * Program entry "idngram2lm": -vocab_type 0 -idngram IN -vocab V -arpa OUT -context CCS
 * -witten_bell [-verbosity N]. Writes the ARPA model; 0 on success.
 *
 * Only a closed vocabulary and Witten-Bell discounting are made, so both options are required.
 * The context cues file lists words in the vocabulary format; every cue except "</s>" (which
 * ends sentences and is predicted) is never predicted. See WittenBellModel.h for the estimate
 * and ArpaWriter.h for what the file leaves out.
 */
int idngram2lm(const QStringList &arguments);

} // namespace lm
