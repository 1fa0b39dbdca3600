// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace brenvaldo::files {

/// What strip takes. Numbers are decimal texts: leading digits count, all else reads as 0; "" and
/// "0" mean "not set".
struct StripSettings
{
    QString count; ///< units to drop
    QString side; ///< "0" drops at the start, any other text at the end
    QString character; ///< text that is removed wherever it occurs
    QString start; ///< place of the first unit of the range, from 1
    QString stop; ///< one more than the length of the range
    QString fragment; ///< text at which the name is split
    QString removeMode; ///< "0" to "3": what goes, before or behind the fragment
    QString allowedMode; ///< "0" all characters, "1" letters and digits, else letters
    QString preserve; ///< "1" keeps the extension out of it
};

/// What replace takes.
struct ReplaceSettings
{
    QString caseMode; ///< as of `hChangeCaseFiles`
    QString start; ///< place of the first unit of the range, from 1; 0 leaves the range alone
    QString stop; ///< one more than the length of the range
    QString character; ///< what comes in place of the range
    QString find;
    QString replacement;
};

/// What prefix takes; flags are "1" or another text.
struct PrefixSettings
{
    QString text;
    QString metadataKey; ///< name of a search attribute, without "kMDItem"
    QString creationDate;
    QString modificationDate;
};

/// What postfix takes.
struct PostfixSettings
{
    QString text;
    QString metadataKey;
    QString creationDate;
    QString modificationDate;
    QString beforeExtension;
};

/// What numbering takes.
struct NumberingSettings
{
    QString prefix;
    QString postfix;
    int digits = 0; ///< places of the number; with no more places than it has, it vanishes
    QString position; ///< "0" behind the name's base, any other text before the name
};

/// The transforms of file names, and small helpers for texts.
///
/// An object has no state. Lengths and places count UTF-16 units. Names come out in normalisation
/// form C, but for those of numbering.
class cNSStringHandling
{
public:
    /// Takes count, character, range and fragment off the name, in this order, and then all
    /// characters that are not allowed. A range beyond the end raises a range error.
    static QString hFileNameStripper(const QString& name, const StripSettings& settings);
    /// As `hFileNameStripper`, with a list of texts as `character`; `separator` is "0" for ";", "1"
    /// for ",", any other for "~".
    static QString hFileNameStripperV2(
        const QString& name, const StripSettings& settings, const QString& separator
    );
    /// Changes the case, replaces the text of the range, and then that of `find`. A range beyond
    /// the end raises a range error.
    static QString hReplaceText(const QString& name, const ReplaceSettings& settings);
    /// Replaces each occurrence of the text that stands in the range.
    static QString hTrimReplace(
        const QString& text, const QString& replacement, const QString& start, const QString& stop
    );
    /// Puts dates and the value of a search attribute of the file at `path` before the name, each
    /// followed by the text; the text alone where there is none of them.
    static QString
    hAddPrefix(const QString& path, const QString& name, const PrefixSettings& settings);
    /// Puts the text behind the name, and then dates and the value, each with the text before it.
    static QString
    hAddPostfix(const QString& path, const QString& name, const PostfixSettings& settings);
    /// Advances the running number and puts it at the name.
    static QString hNumbering(const QString& name, const NumberingSettings& settings);

    /// "1" lower case, "2" upper case, "3" capitals at the start of words; any other leaves it.
    static QString hChangeCaseFiles(const QString& text, const QString& mode);
    /// "NA" keeps letters, marks and digits, "OL" letters and marks; any other mode keeps all.
    static QString hRemoveNonLetters(const QString& text, const QString& mode);
    /// Takes `count` units off the side "fLeft" or "fRight"; unchanged where there are not as many.
    static QString hStripString(const QString& text, const QString& side, qsizetype count);
    /// The text unchanged where the range does not lie in it.
    static QString hSubsectionString(const QString& text, qsizetype location, qsizetype length);
    static QStringList hSplitString(const QString& text, const QString& separator);
    /// The text unchanged where it has no such place.
    static QString
    hInsertStringInString(const QString& text, const QString& insert, qsizetype index);
    static QString
    hReplaceStringInString(const QString& text, const QString& find, const QString& replacement);
    static QString hConcatString(const QString& first, const QString& second, const QString& third);
    /// In any case of letters, whatever form their accents have; "" is in no text.
    static bool hStringContainsString(const QString& text, const QString& needle);
    static bool hStringBeginsWith(const QString& text, const QString& prefix);
    /// A suffix that is longer than the text raises a range error.
    static bool hStringEndWith(const QString& text, const QString& suffix);
    /// Removes U+0020 and no other white space.
    static QString hRemoveWhiteSpace(const QString& text);
    /// Reverses by UTF-16 units.
    static QString hReverseString(const QString& text);
    /// "2026-11-15 10:44:33 +0000", in UTC.
    static QString hNSDateToNSString(const QDateTime& date);
    /// Nothing for what is not UTF-8.
    static std::optional<QString> hNSDataToNSString(const QByteArray& data);
    /// Nothing where a character is not ASCII.
    static std::optional<QByteArray> hNSStringToNSData(const QString& text);
    /// Base64 without line breaks.
    static QString hConvertNSdToNSstr(const QByteArray& data);
    /// Nothing for what is not Base64.
    static std::optional<QByteArray> hConvertNSstrToNSd(const QString& text);
};

} // namespace brenvaldo::files
