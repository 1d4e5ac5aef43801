#pragma once

#include "FaultInjection.h"

#include <QByteArray>

#include <functional>
#include <map>
#include <vector>

/// Computes the possible contents of a folder after a loss of power. The model is told the file
/// system calls of a program and knows which of their effects have been synced to the disk. Any
/// part of the other effects may have reached the disk: every truncation and every block of a file
/// independently of each other, and changes of the folder's entries in their order.
class DiskModel
{
public:
    using Content = QByteArray;
    using Folder = std::map<QByteArray, Content>; // contents by file name

    /// Creates a model of a disk with the folder `path` (absolute), which contains `folder`.
    DiskModel(const QByteArray &path, const Folder &folder);

    /// Records a successful call.
    void note(const Faults::Call &call);

    /// Records a sync of a file that failed. The system reports an error once and then counts the
    /// changes as written: no later sync writes them.
    void noteFailedSync(const Faults::Call &call);

    /// Calls `check` with every possible content of the folder after a loss of power now.
    void eachLoss(const std::function<void(const Folder &)> &check) const;

    /// Returns the content of the folder as programs see it without a loss of power.
    Folder visible() const;

private:
    /// A change of one file's content: a truncation to `offset`, or a block written there.
    struct Change
    {
        bool isCut;
        qint64 offset;
        QByteArray data;
        enum State { Pending, Forgotten, OnDisk } state = Pending;
    };
    struct File
    {
        Content onDisk;
        std::vector<Change> pending; // those that may be missing on the disk, and later ones
    };
    using Names = std::map<QByteArray, int>; // index into mFiles by file name
    using NameChange = std::function<void(Names &)>;

    QByteArray nameOf(const QByteArray &path) const;
    void noteOpen(const Faults::Call &call, const QByteArray &name);
    void change(const NameChange &nameChange);
    void write(File &file, const Faults::Call &call);
    static void sync(File &file);
    static void apply(const Change &change, Content &content);
    static std::vector<Content> possibleContents(const File &file);
    static Folder folderOf(const Names &names, const std::vector<Content> &contents);

    QByteArray mPath;
    std::vector<File> mFiles;
    Names mNamesOnDisk;
    Names mNames;
    std::vector<NameChange> mPendingNames;
};
