// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractListModel>
#include <QListView>

namespace brenvaldo::views {

class PhotoSamples;

/// Titles with a picture of what each of them does.
class SampleModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit SampleModel(PhotoSamples& samples, QObject* parent = nullptr);

    void setTitles(const QStringList& titles);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// Asking for a picture, as a view does for those in sight alone, starts its making.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    PhotoSamples& m_samples;
    QStringList m_titles;
};

/// A pop-up menu laid open: its choices stand side by side, each with a picture of what it makes of
/// the selected photo.
class SampleChooser : public QListView
{
    Q_OBJECT

public:
    explicit SampleChooser(PhotoSamples& samples, QWidget* parent = nullptr);

    void setTitles(const QStringList& titles);
    /// An index outside of the titles selects none.
    void select(int index);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has chosen another one.
    void picked(int index);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    SampleModel* m_model;
    bool m_isFollowing = false; ///< the control has chosen, not the user
};

} // namespace brenvaldo::views
