// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "code_panel.h"
#include "crop_panel.h"
#include "exif_panel.h"
#include "filter_panel.h"
#include "framing_panel.h"
#include "gallery_panel.h"
#include "info_sheet.h"
#include "note_panel.h"
#include "output_panels.h"
#include "photo_info_panel.h"
#include "photos_album_sheet.h"
#include "preferences_sheet.h"
#include "presets_sheet.h"
#include "profile_panel.h"
#include "rename_panel.h"
#include "resize_panel.h"
#include "rotate_panel.h"
#include "roundings_panel.h"
#include "sorting_panel.h"
#include "tint_panel.h"
#include "watermark_panel.h"
#include "window_controls.h"

#include <platform/foundation/literals.h>

#include <QHash>

namespace brenvaldo::panels {

/// Every control of the program, each exactly once, in the panel that shows it.
class Panels
{
public:
    Panels();

    WindowControls window;
    ShowPreviewPanel vwShowPreview;
    ApplyOnPanel vwApplyOn;
    FileTypePanel vwFileType;
    MainDestinationPanel vwMainDestination;
    ResizePanel vwResizePhotos;
    WatermarkPanel vwWatermark;
    TintPanel vwAddTint;
    FramingPanel vwFraming;
    RoundingsPanel vwRoundings;
    ProfilePanel vwProfileConversion;
    NotePanel vwCopyFaces{
        u"vwCopyFaces"_s,
        u"Each face in a ticked photo becomes a photo of its own. There is nothing to set."_s};
    RotatePanel vwRotatePhotos;
    FilterPanel vwFilterPhotos;
    CropPanel vwCropPhotos;
    SortingPanel vwFileManagementSorting;
    ExifPanel vwFileManagementEXIF;
    RenamePanel vwFileManagementRename;
    NotePanel vwFileManagementConvert{
        u"vwFileManagementConvert"_s,
        u"Each ticked photo is written anew as the file type below, with its metadata where the "
        u"type can hold it."_s};
    CodePanel vwQRBarCode;
    GalleryPanel vwHtmlExport;
    PhotoInfoPanel vwPhotoInfo;
    PresetsSheet wwPresetsWindow;
    PreferencesSheet wwPreferencesWindow;
    PhotosAlbumSheet wwPhotosAlbumWindow;
    InfoSheet wwInfoWindow;
    ApplicationVersionSheet wwApplicationVersionWindow;

    /// The control of that name or alias; null when there is none.
    [[nodiscard]] controls::Control* control(const QString& name) const;

    /// The panel view of that name; null when there is none.
    [[nodiscard]] const PanelView* view(const QString& name) const;

    [[nodiscard]] const QList<controls::Control*>& controls() const { return m_controls; }
    [[nodiscard]] const QList<const PanelView*>& views() const { return m_views; }

    /// True while the view stands in a holder, and all views around it do, or its sheet is open.
    [[nodiscard]] bool isShown(const PanelView& view) const;

private:
    void addEditPanels();
    void addSheets();
    void addFilterViews();
    void addFileManagementPanels();
    void add(const PanelView& view);
    void add(controls::Control& control);

    QList<controls::Control*> m_controls;
    QList<const PanelView*> m_views;
    QHash<QString, controls::Control*> m_controlsByName;
};

} // namespace brenvaldo::panels
