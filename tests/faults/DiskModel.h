#pragma once

#include "FaultInjection.h"

#include <QByteArray>

#include <functional>
#include <map>
#include <vector>

/// What a folder could hold after a loss of power. The model listens to the calls that a program
/// makes, and knows which of their effects were forced onto the disk; of the others any part may
/// have arrived: of a file's content every cut and every block by itself, of the folder's names the
/// earlier ones before the later ones.
class DiskModel
{
public:
    using Content = QByteArray;
    using Folder = std::map<QByteArray, Content>; // by the names in it

    /// A disk that holds `folder`, watched at the absolute path `path`.
    DiskModel(const QByteArray &path, const Folder &folder);

    /// Takes note of a call that succeeds.
    void note(const Faults::Call &call);

    /// Hands every folder that a loss of power could leave now to `check`.
    void eachLoss(const std::function<void(const Folder &)> &check) const;

    /// The folder as programs see it, when the power stays.
    Folder visible() const;

private:
    /// A change of one file's content: a cut to `offset`, or a block written there.
    struct Change
    {
        bool isCut;
        qint64 offset;
        QByteArray data;
    };
    struct File
    {
        Content onDisk;
        std::vector<Change> pending;
    };
    using Names = std::map<QByteArray, int>; // number of the file by its name
    using NameChange = std::function<void(Names &)>;

    QByteArray nameOf(const QByteArray &path) const;
    void noteOpen(const Faults::Call &call, const QByteArray &name);
    void change(const NameChange &nameChange);
    void write(File &file, const Faults::Call &call);
    static void apply(const Change &change, Content &content);
    static std::vector<Content> possibleContents(const File &file);
    static Folder folderOf(const Names &names, const std::vector<Content> &contents);

    QByteArray mPath;
    std::vector<File> mFiles;
    Names mNamesOnDisk;
    Names mNames;
    std::vector<NameChange> mPendingNames;
};
