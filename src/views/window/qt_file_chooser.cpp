// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt_file_chooser.h"

#include <controls/control.h>
#include <platform/foundation/literals.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include <vector>

namespace brenvaldo::views {

namespace {

/// Completes the typed name before it asks whether that file may be replaced: the toolkit asks
/// first, and completes no name that has a dot.
class SaveDialog : public QFileDialog
{
public:
    SaveDialog(QWidget* parent, const controls::SavePanel& panel)
        : QFileDialog(parent)
        , m_panel(panel)
    {
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
        filterByType();
        for (const auto& accessory : panel.accessories)
            m_choices.push_back(accessory.control->changed.connect([this] { filterByType(); }));
    }

protected:
    void accept() override
    {
        completeName();
        QFileDialog::accept();
    }

private:
    void filterByType()
    {
        if (!m_panel.allowedTypes.isEmpty())
            setNameFilter(nameFilter(m_panel.allowedTypes));
    }

    void completeName()
    {
        auto* const field = findChild<QLineEdit*>(u"fileNameEdit"_s);
        const bool namesFolder = QFileInfo(selectedFiles().value(0)).isDir();
        if (field && !namesFolder)
            field->setText(controls::withAllowedType(field->text(), m_panel));
    }

    const controls::SavePanel& m_panel;
    std::vector<platform::Subscription> m_choices;
};

} // namespace

QString nameFilter(const QStringList& types)
{
    if (types.isEmpty())
        return {};
    QStringList patterns;
    for (const QString& type : types) {
        for (const QString& spelling : {type.toLower(), type.toUpper()}) {
            const QString pattern = u"*."_s + spelling;
            if (!patterns.contains(pattern))
                patterns.append(pattern);
        }
    }
    return QCoreApplication::translate("FileChooser", "Files (%1)")
        .arg(patterns.join(QLatin1Char(' ')));
}

void QtFileChooser::attachTo(QWidget* window, MakeField makeField)
{
    m_window = window;
    m_makeField = std::move(makeField);
}

std::optional<QStringList> QtFileChooser::open(const controls::OpenPanel& panel)
{
    QFileDialog dialog(m_window);
    prepare(dialog, panel.message, panel.startFolder);
    const bool onlyFolders = panel.choosesDirectories && !panel.choosesFiles;
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    if (onlyFolders) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
    } else {
        dialog.setFileMode(
            panel.allowsMultipleSelection ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile
        );
        if (!panel.allowedTypes.isEmpty())
            dialog.setNameFilter(nameFilter(panel.allowedTypes));
    }
    dialog.setOption(QFileDialog::ReadOnly, !panel.canCreateDirectories);
    if (!panel.prompt.isEmpty())
        dialog.setLabelText(QFileDialog::Accept, panel.prompt);
    addAccessories(dialog, panel.accessories);
    return run(dialog);
}

std::optional<QString> QtFileChooser::save(const controls::SavePanel& panel)
{
    SaveDialog dialog(m_window, panel);
    prepare(dialog, panel.message, panel.startFolder);
    dialog.selectFile(panel.suggestedName);
    addAccessories(dialog, panel.accessories);
    const auto paths = run(dialog);
    return paths ? std::optional(paths->first()) : std::nullopt;
}

void QtFileChooser::prepare(QFileDialog& dialog, const QString& message, const QString& startFolder)
    const
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setWindowTitle(message);
    const QString folder = startFolder.isEmpty() ? m_lastFolder : startFolder;
    if (!folder.isEmpty())
        dialog.setDirectory(folder);
    dialog.resize(820, 520);
}

void QtFileChooser::addAccessories(
    QFileDialog& dialog, const QList<controls::Accessory>& accessories
) const
{
    auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
    if (!grid || !m_makeField)
        return;
    for (const auto& accessory : accessories) {
        const int row = grid->rowCount();
        QWidget* field = m_makeField(*accessory.control, &dialog);
        auto* label = new QLabel(accessory.label, &dialog);
        label->setBuddy(field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
    }
}

std::optional<QStringList> QtFileChooser::run(QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    m_lastFolder = dialog.directory().path();
    return dialog.selectedFiles();
}

} // namespace brenvaldo::views
