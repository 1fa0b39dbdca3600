// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "comment_settings.h"
#include "property_tree.h"

#include <panels/panels.h>
#include <platform/foundation/signal.h>
#include <platform/metadata/image_properties.h>

#include <QString>
#include <QStringList>

#include <optional>

namespace brenvaldo::metadata {

/// Reads the metadata of photos: single values for other subsystems, and all of it for the user.
/// Writes comment and IPTC values into them.
class mMeta
{
public:
    /// `panels` must outlive this object.
    explicit mMeta(panels::Panels& panels);

    /// Shows the comment and the property tree of the photo at `path`; answers the last tree.
    const QList<PropertyNode>& hiDoNothing(const QString& path);

    /// Shows no photo any more.
    void forgetPhoto();

    /// Builds the tree of `properties` and keeps it.
    const QList<PropertyNode>& propTree(const platform::metadata::PropertyDictionary& properties);
    [[nodiscard]] const QList<PropertyNode>& myVarTree() const { return m_tree; }

    /// Fills the comment and the twelve IPTC fields from the photo at `path`; answers "OK".
    QString hGetMetaData(const QString& path);

    /// The properties of the file's image 0: what the readers below take as a source. Nothing for a
    /// file that is no image.
    [[nodiscard]] static std::optional<platform::metadata::PropertyDictionary>
    getMyImageSource(const QString& path);

    /// Width and height of the stored pixels.
    [[nodiscard]] static QList<qint64>
    hGetPixelFormatFromSource(const platform::metadata::PropertyDictionary& source);

    /// The user comment for the name "EXIF User Comment", the date of the exposure for any other;
    /// "" without one, or for a comment of blanks only.
    [[nodiscard]] static QString
    hGetExifUcFromSource(const platform::metadata::PropertyDictionary& source, const QString& name);

    /// The same for a file, by its extension of a kind that can hold EXIF. An empty comment gives
    /// way to the IPTC caption, an empty date to the IPTC time.
    [[nodiscard]] static QString hGetExifUc(const QString& path, const QString& name);

    /// The IPTC value of that name, such as "IPTC Keyword"; "" without one. A name that is not
    /// known gives the value found last.
    [[nodiscard]] QString hGetSomeIPTC(const QString& path, const QString& name);

    /// The name of the colour space of the photo; "" for a file that is no image.
    [[nodiscard]] static QString hGetColorProfile(const QString& path);

    /// Width and height as the photo shows, as texts; empty for a file that is no image.
    [[nodiscard]] static QStringList hGetPixelFormat(const QString& path);

    enum class Written {
        Done,
        Nothing, ///< the file could not be changed: the log tells why
        NoImage
    };

    /// Writes the comment and the panel's IPTC values into the photo at `path`: the comment behind
    /// the one that stands there, or in its place where the state is not 0.
    Written writeExifData(const QString& path, const CommentSettings& settings);

    /// The same; answers "Failed" for a file that is no image, and "OK" for any other.
    QString hSetExifData(const QString& path, const QString& comment, int clearState);

    /// Writes the panel's IPTC values into the photo at `path` when the flag is 1; answers "OK".
    QString hAddIPTCdata(const QString& path, int writeFlag);

    /// Writes into the one photo, shows what it holds now, and adds a row to the log; nothing for
    /// an empty path.
    void btApplyExifUserComment(const QString& activeFile);

    /// The button was pressed for a file.
    platform::Signal<const QString&, Written> commentApplied;

private:
    void showComment(const platform::metadata::PropertyDictionary& properties);
    void showIptc(const platform::metadata::PropertyDictionary* iptc);

    panels::Panels& m_panels;
    QList<PropertyNode> m_tree;
    QString m_iptcValue;
};

} // namespace brenvaldo::metadata
