#include "DiskModel.h"

#include <fcntl.h>

namespace {

constexpr int sBlock = 16;           // small, so that even small files have several blocks
constexpr size_t sMaxForSubsets = 8; // with more changes only some of the subsets are tried

/// Returns the subsets of `count` changes that are tried, as bit sets: bit i is change i.
std::vector<quint64> selections(size_t count)
{
    std::vector<quint64> result;
    if (count <= sMaxForSubsets) {
        for (quint64 bits = 0; bits < (quint64(1) << count); ++bits)
            result.push_back(bits);
        return result;
    }
    const quint64 all = (quint64(1) << count) - 1;
    for (size_t i = 0; i <= count; ++i) {
        const quint64 first = (quint64(1) << i) - 1;
        result.push_back(first);
        result.push_back(all & ~first);
        if (i < count) {
            result.push_back(quint64(1) << i);
            result.push_back(all & ~(quint64(1) << i));
        }
    }
    return result;
}

} // namespace

DiskModel::DiskModel(const QByteArray &path, const Folder &folder) : mPath(path)
{
    for (const auto &[name, content] : folder) {
        mNames[name] = static_cast<int>(mFiles.size());
        mFiles.push_back({content, {}});
    }
    mNamesOnDisk = mNames;
}

void DiskModel::note(const Faults::Call &call)
{
    using Faults::Kind;
    const QByteArray name = nameOf(call.path);
    const auto known = mNames.find(name);
    File *file = known != mNames.end() ? &mFiles[static_cast<size_t>(known->second)] : nullptr;
    switch (call.kind) {
    case Kind::Open: noteOpen(call, name); break;
    case Kind::Truncate: file->pending.push_back({true, call.offset, {}, Change::Pending}); break;
    case Kind::Write: write(*file, call); break;
    case Kind::Sync:
        if (call.path == mPath) {
            mNamesOnDisk = mNames;
            mPendingNames.clear();
        } else {
            sync(*file);
        }
        break;
    case Kind::Rename:
        change([name, to = nameOf(call.newPath)](Names &names) {
            const auto from = names.find(name);
            names[to] = from->second;
            names.erase(from);
        });
        break;
    case Kind::Unlink:
        if (file)
            change([name](Names &names) { names.erase(name); });
        break;
    case Kind::Read:
    case Kind::Close: break;
    }
}

void DiskModel::noteFailedSync(const Faults::Call &call)
{
    const auto known = mNames.find(nameOf(call.path));
    if (known == mNames.end())
        return;
    for (Change &change : mFiles[static_cast<size_t>(known->second)].pending) {
        if (change.state == Change::Pending)
            change.state = Change::Forgotten;
    }
}

void DiskModel::sync(File &file)
{
    auto &pending = file.pending;
    auto irrelevant = pending.begin();
    for (auto change = pending.begin(); change != pending.end(); ++change) {
        if (change->state == Change::Pending)
            change->state = Change::OnDisk;
        // What came before does not matter if the file was emptied on the disk.
        if (change->state == Change::OnDisk && change->isCut && change->offset == 0)
            irrelevant = change;
    }
    pending.erase(pending.begin(), irrelevant);
    while (!pending.empty() && pending.front().state == Change::OnDisk) {
        apply(pending.front(), file.onDisk);
        pending.erase(pending.begin());
    }
}

void DiskModel::eachLoss(const std::function<void(const Folder &)> &check) const
{
    std::vector<std::vector<Content>> possible;
    size_t combinations = 1;
    for (const File &file : mFiles) {
        possible.push_back(possibleContents(file));
        combinations *= possible.back().size();
    }
    Names names = mNamesOnDisk;
    for (size_t arrived = 0; arrived <= mPendingNames.size(); ++arrived) {
        if (arrived > 0)
            mPendingNames[arrived - 1](names);
        for (size_t combination = 0; combination < combinations; ++combination) {
            std::vector<Content> contents;
            size_t rest = combination;
            for (const std::vector<Content> &choices : possible) {
                contents.push_back(choices[rest % choices.size()]);
                rest /= choices.size();
            }
            check(folderOf(names, contents));
        }
    }
}

DiskModel::Folder DiskModel::visible() const
{
    std::vector<Content> contents;
    for (const File &file : mFiles) {
        contents.push_back(file.onDisk);
        for (const Change &change : file.pending)
            apply(change, contents.back());
    }
    return folderOf(mNames, contents);
}

QByteArray DiskModel::nameOf(const QByteArray &path) const
{
    return path.mid(mPath.size() + 1);
}

void DiskModel::noteOpen(const Faults::Call &call, const QByteArray &name)
{
    const auto known = mNames.find(name);
    if (known != mNames.end()) {
        if (call.flags & O_TRUNC)
            mFiles[static_cast<size_t>(known->second)].pending.push_back(
                {true, 0, {}, Change::Pending});
    } else if (call.flags & O_CREAT) {
        const int number = static_cast<int>(mFiles.size());
        mFiles.push_back({});
        change([name, number](Names &names) { names[name] = number; });
    }
}

void DiskModel::change(const NameChange &nameChange)
{
    nameChange(mNames);
    mPendingNames.push_back(nameChange);
}

void DiskModel::write(File &file, const Faults::Call &call)
{
    for (qint64 done = 0; done < call.size;) {
        const qint64 offset = call.offset + done;
        const qint64 size = std::min(call.size - done, sBlock - offset % sBlock);
        file.pending.push_back(
            {false, offset, QByteArray(call.data + done, static_cast<int>(size)), Change::Pending});
        done += size;
    }
}

void DiskModel::apply(const Change &change, Content &content)
{
    const auto offset = static_cast<QByteArray::size_type>(change.offset);
    if (change.isCut)
        content.truncate(offset);
    const auto end = offset + change.data.size();
    if (content.size() < end)
        content.append(QByteArray(end - content.size(), '\0'));
    content.replace(offset, change.data.size(), change.data);
}

std::vector<DiskModel::Content> DiskModel::possibleContents(const File &file)
{
    std::vector<Content> result;
    for (const quint64 selection : selections(file.pending.size())) {
        Content content = file.onDisk;
        for (size_t i = 0; i < file.pending.size(); ++i) {
            const bool isOnDisk = file.pending[i].state == Change::OnDisk;
            if (isOnDisk || selection & (quint64(1) << i))
                apply(file.pending[i], content);
        }
        result.push_back(content);
    }
    return result;
}

DiskModel::Folder DiskModel::folderOf(const Names &names, const std::vector<Content> &contents)
{
    Folder folder;
    for (const auto &[name, number] : names)
        folder[name] = contents[static_cast<size_t>(number)];
    return folder;
}
