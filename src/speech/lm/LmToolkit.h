#pragma once

#include <QStringList>

class QIODevice;

/**
 * @brief Statistical language-model toolkit: the four steps from a text corpus to an ARPA
 * trigram model, with the classic tools' roles and file formats, called in process.
 *
 * The corpus is white-space separated tokens, one sentence a line between "<s>" and "</s>".
 * Each step reports success; failures are logged and leave the caller to decide.
 */
namespace lm {

/// Word frequencies: "word count" lines, one per distinct token of the text.
bool text2wfreq(QIODevice &text, QIODevice &frequencies, int initialTableSize, int verbosity);

/// Vocabulary from frequencies: words with a count above the cutoff (-1: no cutoff), at most
/// vocabularySize of them (-1: no limit), sorted, in the toolkit's vocabulary file format.
bool wfreq2vocab(QIODevice &frequencies, QIODevice &vocabulary, int cutoff, int vocabularySize,
                 int records, int verbosity);

/// Program entry "text2idngram" with its argument vector (arguments[0] is the program name):
/// -vocab V -idngram OUT -textfile TEXT -temp_directory TEMPLATE. 0 on success.
int text2idngram(const QStringList &arguments);

/// Program entry "idngram2lm": -vocab_type 0 -idngram IN -vocab V -arpa OUT -context CCS
/// -witten_bell -verbosity N. Writes the ARPA model; 0 on success.
int idngram2lm(const QStringList &arguments);

} // namespace lm
