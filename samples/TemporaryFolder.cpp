#include "samples/TemporaryFolder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "text/Fatal.h"

namespace Loadwick {

namespace {

std::filesystem::path newFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "loadwick-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        fatalError("no temporary folder");
    return std::filesystem::canonical(pattern);
}

void makeFoldersAccessible(const std::filesystem::path &root)
{
    namespace fs = std::filesystem;
    std::error_code ignored;
    fs::permissions(root, fs::perms::owner_all, fs::perm_options::add, ignored);
    for (const fs::directory_entry &entry : fs::directory_iterator(root, ignored))
        if (entry.is_directory(ignored) && !entry.is_symlink(ignored))
            makeFoldersAccessible(entry.path());
}

} // namespace

TemporaryFolder::TemporaryFolder() : m_path(newFolder()) {}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    makeFoldersAccessible(m_path);
    std::filesystem::remove_all(m_path, ignored);
}

std::filesystem::path TemporaryFolder::write(const std::filesystem::path &relative,
                                             std::string_view bytes) const
{
    const std::filesystem::path path = m_path / relative;
    writeFile(path, bytes);
    return path;
}

std::filesystem::path TemporaryFolder::writeScript(const std::filesystem::path &relative,
                                                   std::string_view text) const
{
    const std::filesystem::path path = write(relative, text);
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path;
}

void writeFile(const std::filesystem::path &path, std::string_view bytes)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        fatalError("a sample file could not be written");
}

std::vector<std::string> namesIn(const std::filesystem::path &folder)
{
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string contentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        fatalError("a sample file could not be read");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace Loadwick
