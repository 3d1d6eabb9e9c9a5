#include "SoundSpelling.h"

#include <QHash>
#include <initializer_list>
#include <limits>
#include <vector>

namespace {

struct Unit {
    QString text;
    /// The phones the unit usually stands for; empty for a unit that is usually silent.
    QStringList phones;
    /// Units such as "x" or "ts" stand for two phones at no extra cost.
    bool pair{false};
    /// False for a character the table lacks: it may spell anything, or nothing.
    bool known{true};
};

struct UnitSpelling {
    QStringList phones;
    bool pair{false};
};

using Table = QHash<QString, UnitSpelling>;

struct TableLine {
    const char16_t *unit;
    /// Separated by blanks.
    const char16_t *phones;
    bool pair{false};
};

Table tableOf(std::initializer_list<TableLine> lines)
{
    Table table;
    for (const TableLine &line : lines)
        table.insert(QString::fromUtf16(line.unit),
                     {QString::fromUtf16(line.phones).split(u' ', Qt::SkipEmptyParts), line.pair});
    return table;
}

const Table &letterTable()
{
    static const Table table = tableOf({
        {u"a", u"AA AH AE"},
        {u"ä", u"EH AE EY"},
        {u"e", u"EH AH EY IH IY ER"},
        {u"i", u"IH IY Y"},
        {u"o", u"AO OW AA AH"},
        {u"ö", u"ER EH OW UH"},
        {u"u", u"UH UW AH"},
        {u"ü", u"UW IY UH IH ER"},
        {u"y", u"IY IH UW Y ER"},
        {u"ei", u"AY"},
        {u"ey", u"AY"},
        {u"ai", u"AY"},
        {u"ay", u"AY"},
        {u"eu", u"OY"},
        {u"äu", u"OY"},
        {u"au", u"AW"},
        {u"ie", u"IY IH"},
        {u"aa", u"AA"},
        {u"ah", u"AA"},
        {u"ee", u"EY IY EH"},
        {u"eh", u"EY IY EH"},
        {u"ih", u"IY"},
        {u"oo", u"OW AO"},
        {u"oh", u"OW AO"},
        {u"uh", u"UW"},
        {u"äh", u"EH EY"},
        {u"öh", u"ER"},
        {u"üh", u"UW IY"},
        {u"b", u"B P"},
        {u"c", u"K S CH T"},
        {u"ch", u"SH K HH CH"},
        {u"chs", u"K S", true},
        {u"ck", u"K"},
        {u"d", u"D T"},
        {u"dt", u"T"},
        {u"f", u"F"},
        {u"g", u"G K SH"},
        {u"h", u"HH"},
        {u"j", u"Y JH"},
        {u"k", u"K"},
        {u"l", u"L"},
        {u"m", u"M"},
        {u"n", u"N NG"},
        {u"ng", u"NG"},
        {u"p", u"P B"},
        {u"pf", u"P F", true},
        {u"ph", u"F"},
        {u"qu", u"K V W", true},
        {u"r", u"R ER"},
        {u"s", u"S Z SH"},
        {u"sch", u"SH"},
        {u"ß", u"S"},
        {u"t", u"T D"},
        {u"th", u"T TH"},
        {u"tsch", u"CH T SH"},
        {u"tz", u"T S", true},
        {u"v", u"F V"},
        {u"w", u"V W"},
        {u"x", u"K S", true},
        {u"z", u"T S Z", true},
        {u"'", u""},
    });
    return table;
}

const Table &ipaTable()
{
    static const Table table = tableOf({
        {u"a", u"AA AH AE"}, {u"ɛ", u"EH AE"}, {u"e", u"EY EH IY"},   {u"ɪ", u"IH IY"},
        {u"i", u"IY IH"},    {u"ɔ", u"AO AA"}, {u"o", u"OW AO"},      {u"ʊ", u"UH UW"},
        {u"u", u"UW UH"},    {u"y", u"UW IY"}, {u"ʏ", u"ER UW UH"},   {u"ø", u"ER OW"},
        {u"œ", u"ER EH"},    {u"ə", u"AH EH"}, {u"ɐ", u"ER AH R"},    {u"aɪ", u"AY"},
        {u"aʊ", u"AW"},      {u"ɔʏ", u"OY"},   {u"b", u"B"},          {u"d", u"D"},
        {u"f", u"F"},        {u"ɡ", u"G"},     {u"g", u"G"},          {u"h", u"HH"},
        {u"j", u"Y"},        {u"k", u"K"},     {u"l", u"L"},          {u"m", u"M"},
        {u"n", u"N NG"},     {u"ŋ", u"NG N"},  {u"p", u"P"},          {u"ʁ", u"R"},
        {u"r", u"R"},        {u"ɾ", u"R"},     {u"s", u"S Z"},        {u"ʃ", u"SH"},
        {u"t", u"T"},        {u"v", u"V F"},   {u"z", u"Z S"},        {u"ʒ", u"ZH"},
        {u"ç", u"SH HH"},    {u"x", u"K HH"},  {u"ts", u"T S", true}, {u"pf", u"P F", true},
        {u"tʃ", u"CH"},      {u"dʒ", u"JH"},   {u"ʔ", u""},
    });
    return table;
}

/// Longest-first cut of text into the table's units; a character the table lacks is a unit of
/// its own that spells nothing in particular. Units keep the text's own spelling.
QList<Unit> cutIntoUnits(const QString &text, const QString &folded, const Table &table)
{
    QList<Unit> units;
    qsizetype at = 0;
    while (at < folded.size()) {
        qsizetype length = 4;
        for (; length > 1; --length) {
            if (at + length <= folded.size() && table.contains(folded.mid(at, length)))
                break;
        }
        const auto spelling = table.constFind(folded.mid(at, length));
        if (spelling == table.cend())
            units.append({text.mid(at, length), {}, false, false});
        else
            units.append({text.mid(at, length), spelling->phones, spelling->pair});
        at += length;
    }
    return units;
}

/// The cheapest laying of units over phones; for each phone the text of its unit.
QStringList layOver(const QList<Unit> &units, const QStringList &phones)
{
    constexpr int mostPhonesPerUnit = 3;
    constexpr double unusualPhone = 1.0;
    constexpr double silentUnit = 0.8;
    constexpr double silentByNature = 0.1;
    constexpr double extraPhone = 0.3;
    const auto unitCount = static_cast<size_t>(units.size());
    const auto phoneCount = static_cast<size_t>(phones.size());
    constexpr double unreachable = std::numeric_limits<double>::infinity();
    std::vector<std::vector<double>> cost(unitCount + 1,
                                          std::vector<double>(phoneCount + 1, unreachable));
    std::vector<std::vector<int>> taken(unitCount + 1, std::vector<int>(phoneCount + 1, 0));
    cost[0][0] = 0.0;
    for (size_t u = 0; u < unitCount; ++u) {
        const Unit &unit = units[static_cast<qsizetype>(u)];
        for (size_t p = 0; p <= phoneCount; ++p) {
            if (cost[u][p] == unreachable)
                continue;
            for (int k = 0; k <= mostPhonesPerUnit && p + static_cast<size_t>(k) <= phoneCount;
                 ++k) {
                double step = 0.0;
                if (k == 0)
                    step = unit.known && unit.phones.isEmpty() ? silentByNature : silentUnit;
                for (int i = 0; i < k; ++i) {
                    if (!unit.phones.contains(phones[static_cast<qsizetype>(p) + i]))
                        step += unusualPhone;
                }
                if (k > 1 && !(unit.pair && k == 2))
                    step += extraPhone * (k - 1);
                const size_t next = p + static_cast<size_t>(k);
                if (cost[u][p] + step < cost[u + 1][next]) {
                    cost[u + 1][next] = cost[u][p] + step;
                    taken[u + 1][next] = k;
                }
            }
        }
    }
    QStringList parts(phones.size());
    if (cost[unitCount][phoneCount] == unreachable)
        return parts;
    size_t p = phoneCount;
    for (size_t u = unitCount; u > 0; --u) {
        const int k = taken[u][p];
        for (int i = 1; i <= k; ++i)
            parts[static_cast<qsizetype>(p) - i] = units[static_cast<qsizetype>(u) - 1].text;
        p -= static_cast<size_t>(k);
    }
    return parts;
}

} // namespace

namespace SoundSpelling {

QStringList lettersOfPhones(const QString &word, const QStringList &phones)
{
    // Lower-casing keeps German words' length, so the units' places hold in the original.
    const QString folded = word.toLower();
    if (folded.size() != word.size())
        return QStringList(phones.size());
    return layOver(cutIntoUnits(word, folded, letterTable()), phones);
}

QStringList ipaOfPhones(const QString &ipaWord, const QStringList &phones)
{
    // Stress and syllable marks belong to syllables; a tie bar, non-syllabic and syllabic marks
    // and length marks stay with the symbol before them.
    QString symbols;
    for (const QChar c : ipaWord) {
        if (c == u'ˈ' || c == u'ˌ' || c == u'.' || c == u'‿')
            continue;
        symbols += c;
    }
    QList<Unit> units;
    for (const Unit &unit : cutIntoUnits(symbols, symbols, ipaTable())) {
        const bool mark =
            unit.text.size() == 1 && (unit.text[0].category() == QChar::Mark_NonSpacing ||
                                      unit.text[0] == u'ː' || unit.text[0] == u'ˑ');
        if (mark && !units.isEmpty())
            units.last().text += unit.text;
        else
            units.append(unit);
    }
    return layOver(units, phones);
}

} // namespace SoundSpelling
