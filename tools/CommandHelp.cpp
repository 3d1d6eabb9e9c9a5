#include "CommandHelp.h"

#include <array>

namespace {

struct Command {
    const char *name;
    const char *usage;       // one line per form, each without "tolvane-cli "
    const char *description; // what it does, in a few lines
    const char *options;     // one line per option, empty when there are none
};

const std::array<Command, 9> table{{
    {"content",
     "content list [--resources DIR] [--lang CODE] [--category ID]\n"
     "content build SRC OUT",
     "Lists the course's categories and phrases as the app reads them, or builds a course\n"
     "folder (voices, pictures, enciphered phrase lists) from its plain sources; a phrase that\n"
     "did not change is not made again.",
     "--resources DIR  the course folder to list (default: the one the app uses)\n"
     "--lang CODE      the mother language of the translations shown (default: en)\n"
     "--category ID    one category's phrases instead of the list of categories"},
    {"crypt",
     "crypt encipher-plist IN [OUT] [--key KEY]\n"
     "crypt decipher-file IN [--key KEY]\n"
     "crypt encipher-data IN OUT [--key KEY]\n"
     "crypt decipher-data IN OUT [--key KEY]",
     "Enciphers or deciphers files with the content cipher: a property list into an enciphered\n"
     "file, an enciphered file back to its text, or any bytes either way.",
     "--key KEY  the key (default: the content key)"},
    {"words", "words [--upper] TEXT...",
     "Prints the words the recogniser makes of a phrase, one per line.",
     "--upper  upper-case them as the pronunciation list does"},
    {"record", "record show [--record FILE]",
     "Prints every counter of the user record and the experience they add up to.",
     "--record FILE  the record to read (default: the app's)"},
    {"acoustic", "acoustic build --course DIR --model DIR --dict FILE --phones TABLE OUT",
     "Makes the speech model folder OUT: the acoustic model's files and the pronunciation\n"
     "lookup list for the dictionary and every word of the course.",
     "--course DIR    the built course whose words need pronunciations\n"
     "--model DIR     the acoustic model to copy\n"
     "--dict FILE     the English pronunciation dictionary\n"
     "--phones TABLE  the table mapping German phonemes onto the model's phones"},
    {"lm", "lm --name NAME --out DIR WORD... [--hmm DIR]",
     "Generates the dictionary and the trigram language model the app makes for a phrase.",
     "--name NAME  the files' base name\n"
     "--out DIR    the folder to write them to\n"
     "--hmm DIR    the speech model folder (default: the one beside the program)"},
    {"assess", "assess --text PHRASE [--ipa IPA] RECORDING [--json] [--verbose] [--hmm DIR]",
     "Marks a recording of the phrase as the app does: the words recognised, the score, the\n"
     "mark out of 10 and each word's verdict. Any sound file is converted to 16 kHz mono.",
     "--text PHRASE  the phrase that was read\n"
     "--ipa IPA      its transcription, for the tip naming the sound to work on\n"
     "--json         print the result as JSON\n"
     "--verbose      also print the decoder's own log\n"
     "--hmm DIR      the speech model folder (default: the one beside the program)"},
    {"score", "score --text PHRASE --words FILE.json [--json]",
     "Scores recognised words against the phrase, without a recording: FILE.json holds the\n"
     "words and their times as the recogniser reports them.",
     "--text PHRASE       the phrase\n"
     "--words FILE.json   the recognised words\n"
     "--json              print the result as JSON"},
    {"spectrum", "spectrum RECORDING --png OUT [--hmm DIR]",
     "Draws the recording's spectrum as the comparison shows it, into a PNG file.",
     "--png OUT  the picture to write\n"
     "--hmm DIR  the speech model folder whose front end sets the framing"},
}};

const char *const exitStatuses =
    "exit status: 0 done, 1 wrong usage, 2 bad input, 3 failure of the machine (disk, device)\n";

QString indented(const char *lines, const char *prefix)
{
    QString text;
    for (const QString &line : QString::fromUtf8(lines).split(u'\n'))
        text += QLatin1String(prefix) + line + u'\n';
    return text;
}

} // namespace

namespace CommandHelp {

QString overview()
{
    QString text = QStringLiteral("usage: tolvane-cli COMMAND ...\n");
    for (const Command &command : table)
        text += indented(command.usage, "  ");
    return text +
           QStringLiteral("tolvane-cli help COMMAND describes a command and its options.\n") +
           QLatin1String(exitStatuses);
}

QString details(const QString &name)
{
    for (const Command &command : table) {
        if (name != QLatin1String(command.name))
            continue;
        QString text = indented(command.usage, "usage: tolvane-cli ") + u'\n' +
                       QString::fromUtf8(command.description) + u'\n';
        if (*command.options != '\0')
            text += QStringLiteral("\noptions:\n") + indented(command.options, "  ");
        return text + u'\n' + QLatin1String(exitStatuses);
    }
    return QString();
}

QStringList commands()
{
    QStringList names;
    for (const Command &command : table)
        names.append(QLatin1String(command.name));
    return names;
}

} // namespace CommandHelp
