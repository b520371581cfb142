#include "demo/SampleFile.h"

#include <fstream>

#include "text/Fatal.h"

namespace Loadwick {

void writeSampleFile(const std::filesystem::path &path, std::string_view text)
{
    std::error_code failure;
    std::filesystem::create_directories(path.parent_path(), failure);
    std::ofstream file(path, std::ios::binary);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    if (!file)
        fatalError("a file of the throw-away home could not be written");
}

} // namespace Loadwick
