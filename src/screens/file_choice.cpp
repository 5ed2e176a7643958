#include "screens/file_choice.h"

#include "datafiles/file_name.h"
#include "disk/file_path.h"
#include "disk/read.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

#include <memory>

namespace tarvold::filechoice {

using namespace Qt::StringLiterals;

namespace {

constexpr char kExtension[] = ".tvd";

/// Qt saves the state of a file dialog when it is destroyed, but this program keeps no settings. On
/// Windows they would go into the registry in spite of keepNoSettings(), so there a dialog is kept
/// until the program ends.
struct EndOfUse
{
    void operator()(QFileDialog *dialog) const
    {
#ifdef Q_OS_WIN
        dialog->setParent(nullptr);
#else
        delete dialog;
#endif
    }
};

/// Discards the settings that Qt's dialogs save.
void keepNoSettings()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
}

/// The folder of a file; empty if ".." in it leads nowhere. The system finds the folder above the
/// one that a link leads to, Qt the folder with the link.
QString folderOf(const QFileInfo &file)
{
    const QString folder = file.path();
    return QString(folder + u'/').contains("/../"_L1) ? QFileInfo(folder).canonicalFilePath()
                                                      : folder;
}

/// Starts the dialog in the folder of the proposed file and with its name, if both are usable. A
/// folder is not proposed: Qt's own dialog would keep it selected beside the name that is typed.
void startAt(QFileDialog &dialog, const Question &question)
{
    const auto path = FilePath::ofTyped(question.name);
    const QFileInfo file(path ? path->absolute() : question.usual);
    const QString folder = folderOf(file);
    dialog.setDirectory(!folder.isEmpty() && QFileInfo(folder).isDir() ? QDir(folder) : QDir());
    const QString name = isTvdName(file.fileName()) ? file.fileName() : question.usual;
    if (question.proposesName && !QFileInfo(dialog.directory().filePath(name)).isDir()) {
        dialog.selectFile(name);
    }
}

std::unique_ptr<QFileDialog, EndOfUse> newDialog(QWidget *asking, const QString &title,
                                                 messagebox::Blocks blocks)
{
    keepNoSettings();
    std::unique_ptr<QFileDialog, EndOfUse> dialog(new QFileDialog(asking, title));
    if (blocks == messagebox::Blocks::Window) {
        dialog->setWindowModality(Qt::WindowModal);
    }
    dialog->setViewMode(QFileDialog::List);
    dialog->setNameFilter(u"Data files (*.tvd)"_s);
    // Qt's own dialog would offer to delete and rename files.
    dialog->setOption(QFileDialog::ReadOnly);
    return dialog;
}

/// The paths that the user chooses; none if the user cancels.
QStringList answerOf(QFileDialog &dialog)
{
    // The Windows dialog changes the current folder, to which all names on the main menu are
    // relative.
    const QString folder = QDir::currentPath();
    const int answer = dialog.exec();
    QDir::setCurrent(folder);
    return answer == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

} // namespace

std::optional<QString> chosenPath(const Question &question)
{
    const auto dialog = newDialog(question.asking, question.title, question.blocks);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    // Appending loses nothing. Before overwriting, this program asks itself, because only it knows
    // the name with its extension.
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    startAt(*dialog, question);
    const QStringList chosen = answerOf(*dialog);
    return chosen.isEmpty() ? std::nullopt : std::optional(chosen.constFirst());
}

QStringList chosenFiles(QWidget *asking, const QString &title)
{
    const auto dialog = newDialog(asking, title, messagebox::Blocks::Window);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setDirectory(QDir());
    return answerOf(*dialog);
}

QString nameOf(const QString &path)
{
    const auto typed = FilePath::ofTyped(path);
    const QFileInfo file(typed ? typed->absolute() : path);
    const bool isHere = QFileInfo(file.path()).canonicalFilePath() == QDir().canonicalPath();
    return isHere ? file.fileName() : QDir::toNativeSeparators(file.filePath());
}

QString withExtension(QString name)
{
    const QLatin1StringView extension(kExtension);
    if (isTvdName(name)) {
        return name;
    }
    if (name.endsWith(extension, Qt::CaseInsensitive)) {
        name.chop(extension.size());
    }
    return name + extension;
}

bool areSame(const QString &one, const QString &other)
{
    if (!fileExists(one) || !fileExists(other)) {
        return false;
    }
    const QFileInfo first(FilePath::ofTyped(one)->text());
    const QFileInfo second(FilePath::ofTyped(other)->text());
    return first.canonicalFilePath() == second.canonicalFilePath();
}

} // namespace tarvold::filechoice
