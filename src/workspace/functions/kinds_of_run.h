// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subsystems.h"

#include <imaging/output_tail.h>
#include <imaging/picture_sink.h>
#include <workspace/run/driver_messages.h>

#include <QLatin1String>
#include <QStringList>

#include <functional>
#include <optional>
#include <variant>

/// \file
/// What the process button does for a function. An empty operation comes with a later version: its
/// photos fail.

namespace brenvaldo::workspace {

/// Which entries of the photo list a run takes.
enum class Takes {
    PhotosOfTheFilter, ///< ticked photos that the apply-on filter lets through
    AllTicked ///< whatever the file is
};

/// What all files of a run are written as, read once before its loop.
struct OutputChoice
{
    QString type; ///< type identifier, or "original file type"
    QString compressionLevel;
};

/// One photo of a run, its place and its type.
struct PhotoOutput
{
    imaging::SourceAndBase photo;
    imaging::OutputTail tail;
};

/// What a function has at hand while its run goes on.
struct RunContext
{
    const Subsystems& subsystems;
    std::function<void(const Message&)> alert;
};

/// The process button does nothing, or tells which button of the panel does the work.
struct OwnButton
{
    QLatin1String action; ///< of the panel's own button
    Message (*message)() = nullptr;
};

/// Photo by photo into the destination folder.
struct PhotoRun
{
    /// Makes the picture of one photo; nothing where the photo is passed over.
    using Operation = std::function<std::optional<imaging::Outcome>(const PhotoOutput& output)>;
    /// Reads what is read before the loop; called once a run.
    using Start = std::function<Operation(const RunContext& run)>;
    /// Path of the file, by destination base and type.
    using Target = QString (*)(const QString& destinationBase, const QString& typeIdentifier);

    Start start = {};
    Takes takes = Takes::PhotosOfTheFilter;
    Target target = nullptr; ///< not set: that of `hSaveToNewImageFileX`
};

/// Photo by photo where it lies; needs no destination.
struct InPlaceRun
{
    using Operation = std::function<imaging::ResultWord()>;
    /// Reads the arguments of one photo, before the bar goes up; the operation follows after that.
    using Read = std::function<Operation(const Subsystems& subsystems, const QString& path)>;

    Read read = {};
    bool changesTheFile = true; ///< the journal then names the photo as the target
};

/// The whole list at once: the function has a loop, a bar and names of its own.
struct ListRun
{
    struct Photos
    {
        const Subsystems& subsystems;
        QStringList paths;
        QString destination;
        OutputChoice choice;
        imaging::PictureSink& sink;
    };

    std::function<void(const Photos& photos)> work = {};
    /// What `work` takes; the run doesn't start without a photo of the filter, whatever it is.
    Takes takes = Takes::PhotosOfTheFilter;
};

/// One file of a renaming run, or one press of "add to the chain".
struct RenameRequest
{
    QString path;
    QString function; ///< "RenamingFunction" or "CActionFunction"
    int previewState = 0; ///< 1: a dry run
    int index = 0; ///< of the entry in the photo list
};

struct RenameOutcome
{
    imaging::ResultWord word = imaging::ResultWord::None;
    QString newName = {}; ///< what a dry run shows
    QString target = {}; ///< path of the file; empty on a dry run
};

/// File by file, dry or into the destination folder.
struct RenamingRun
{
    std::function<RenameOutcome(const Subsystems&, const RenameRequest&)> rename = {};
};

using KindOfRun = std::variant<OwnButton, PhotoRun, InPlaceRun, ListRun, RenamingRun>;

} // namespace brenvaldo::workspace
