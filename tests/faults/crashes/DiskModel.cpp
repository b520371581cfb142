#include "faults/crashes/DiskModel.h"

#include <algorithm>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

#include "samples/TemporaryFolder.h"
#include "text/Fatal.h"

namespace Faults {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostBlocks = 10; // whose combinations can be enumerated

struct stat statusOf(const fs::path &path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        Loadwick::fatalError("cannot examine " + path.native());
    return status;
}

/// The names in one folder, of all names.
template<typename Names>
Names entriesOf(const Names &names, const std::string &folder)
{
    Names entries;
    for (const auto &[path, number] : names)
        if (fs::path(path).parent_path() == folder)
            entries.emplace(path, number);
    return entries;
}

/// What the block at `begin` may hold, as long as the longest content reaches.
std::set<std::string> blocksAt(std::size_t begin, std::size_t size,
                               const std::vector<std::string> &contents)
{
    std::set<std::string> blocks;
    for (const std::string &content : contents) {
        std::string block = content.substr(std::min(begin, content.size()), size);
        block.resize(size, '\0');
        blocks.insert(std::move(block));
    }
    return blocks;
}

/// Every end that a file may have: that of a content, or of a block between the shortest and the
/// longest.
std::set<std::size_t> sizesOf(const std::vector<std::string> &contents)
{
    std::set<std::size_t> sizes;
    for (const std::string &content : contents)
        sizes.insert(content.size());
    for (std::size_t end = 0; end < *sizes.rbegin(); end += DiskModel::blockSize)
        if (end > *sizes.begin())
            sizes.insert(end);
    return sizes;
}

} // namespace

DiskModel::DiskModel(fs::path root) : m_root(std::move(root))
{
    observe();
    for (auto &[number, file] : m_files)
        file.contents = {file.contents.back()};
}

void DiskModel::observe()
{
    Names names;
    for (const auto &entry : fs::recursive_directory_iterator(m_root)) {
        const std::string path = entry.path().lexically_relative(m_root);
        if (entry.is_directory())
            names.emplace(path, std::nullopt);
        else if (!entry.is_symlink())
            names.emplace(path, observeFile(entry.path()));
    }
    if (m_names.empty() || m_names.back() != names)
        m_names.push_back(std::move(names));
}

DiskModel::Number DiskModel::observeFile(const fs::path &path)
{
    const Number number = statusOf(path).st_ino;
    File &file = m_files[number];
    if (!file.hold.isOpen()) {
        file.hold = Loadwick::FileDescriptor(open(path.c_str(), O_PATH | O_CLOEXEC));
        file.contents = {""};
    }
    std::string content = Loadwick::contentOf(path);
    if (content != file.contents.back())
        file.contents.push_back(std::move(content));
    return number;
}

void DiskModel::sync(const fs::path &path)
{
    const struct stat status = statusOf(path);
    if (S_ISDIR(status.st_mode))
        return syncFolder(fs::canonical(path).lexically_relative(fs::canonical(m_root)));
    const auto file = m_files.find(status.st_ino);
    if (file != m_files.end())
        file->second.contents = {file->second.contents.back()};
}

void DiskModel::syncFolder(const fs::path &folder)
{
    const std::string name = folder == "." ? "" : folder.native();
    for (auto last = m_names.end() - 1; last != m_names.begin(); --last) {
        if (entriesOf(*last, name) == entriesOf(*(last - 1), name))
            continue;
        m_names.erase(m_names.begin(), last);
        return;
    }
}

std::set<DiskModel::Image> DiskModel::images() const
{
    std::set<Image> all;
    for (const Names &names : m_names) {
        std::vector<Image> images(1);
        for (const auto &[path, number] : names) {
            std::vector<Image> extended;
            std::set<std::optional<std::string>> contents{std::nullopt};
            if (number) {
                const auto remains = remainsOf(m_files.at(*number));
                contents = {remains.begin(), remains.end()};
            }
            for (const Image &image : images)
                for (const auto &content : contents) {
                    extended.push_back(image);
                    extended.back().emplace(path, content);
                }
            images = std::move(extended);
        }
        all.insert(images.begin(), images.end());
    }
    return all;
}

std::set<std::string> DiskModel::remainsOf(const File &file)
{
    const std::set<std::size_t> sizes = sizesOf(file.contents);
    const std::size_t longest = *sizes.rbegin();
    if (file.contents.size() == 1)
        return {file.contents.front()};
    if (longest > mostBlocks * blockSize)
        Loadwick::fatalError("too long to enumerate what is left of it");
    std::set<std::string> wholes{""};
    for (std::size_t begin = 0; begin < longest; begin += blockSize) {
        std::set<std::string> longer;
        for (const std::string &whole : wholes)
            for (const auto &block :
                 blocksAt(begin, std::min(blockSize, longest - begin), file.contents))
                longer.insert(whole + block);
        wholes = std::move(longer);
    }
    std::set<std::string> remains;
    for (const std::string &whole : wholes)
        for (const std::size_t size : sizes)
            remains.insert(whole.substr(0, size));
    return remains;
}

void DiskModel::restore(const Image &image, const fs::path &root)
{
    for (const auto &entry : fs::directory_iterator(root))
        fs::remove_all(entry.path());
    for (const auto &[path, content] : image) {
        if (content)
            Loadwick::writeFile(root / path, *content);
        else
            fs::create_directory(root / path);
    }
}

} // namespace Faults
