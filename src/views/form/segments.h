// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QButtonGroup>
#include <QWidget>

namespace brenvaldo::views {

/// A choice of one of a few: segments in a row, or the nine points of a picture as a grid.
///
/// The arrow keys move the choice; each segment is a button with its own accessible name.
class Segments : public QWidget
{
    Q_OBJECT

public:
    enum class Look { Row, Grid };

    explicit Segments(Look look, QWidget* parent = nullptr);

    void setTitles(const QStringList& titles);
    [[nodiscard]] const QStringList& titles() const { return m_titles; }
    [[nodiscard]] int count() const { return static_cast<int>(m_titles.size()); }

    /// -1 chooses none.
    void select(int index);
    [[nodiscard]] int selected() const { return m_group.checkedId(); }
    [[nodiscard]] QAbstractButton* segment(int index) const { return m_group.button(index); }

Q_SIGNALS:
    /// The user has chosen a segment, maybe the one that was chosen already.
    void picked(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void addSegment(int index);

    Look m_look;
    QStringList m_titles;
    QButtonGroup m_group;
};

} // namespace brenvaldo::views
