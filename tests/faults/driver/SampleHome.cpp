#include "faults/driver/SampleHome.h"

#include <fstream>

namespace Faults::SampleHome {

namespace {

namespace fs = std::filesystem;

std::string resultRecord()
{
    return R"({"type":"result","is_error":false,"num_turns":1,"session_id":")" +
           std::string(sessionID) +
           R"(","result":"SLAB Système prompt TOKENS 9000\nSLAB memory files TOKENS 700",)" +
           R"("usage":{"input_tokens":11,"cache_creation_input_tokens":24300,)" +
           R"("cache_read_input_tokens":0,"output_tokens":40}})";
}

} // namespace

void write(const fs::path &path, std::string_view text)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

void writeProgram(const fs::path &path, std::string_view text)
{
    write(path, text);
    fs::permissions(path, fs::perms::owner_all);
}

fs::path writeRepository(const fs::path &home)
{
    const fs::path repository = home / "src/webshop";
    write(repository / "CLAUDE.md", "Read @docs/style.md and\n@docs/tests.md first.\n");
    write(repository / "docs/style.md", "Be brief.\n");
    write(repository / "docs/tests.md", "Test it.\n");
    write(home / "src/CLAUDE.md", "Everything here is ours.\n");
    write(home / ".claude/CLAUDE.md", "Say please.\n");
    return repository;
}

fs::path writeTranscript(const fs::path &home)
{
    const fs::path root = home / ".claude/projects";
    write(root / "other/unrelated.jsonl", "{}\n");
    write(root / "webshop" / (std::string(sessionID) + ".jsonl"),
          // Longer than a piece, so that it is reread.
          "{\"type\":\"user\"}\n{\"padding\":\"" + std::string(70'000, 'x') +
              R"(","type":"assistant","message":{"usage":{"input_tokens":10,)"
              R"("cache_creation_input_tokens":24300,"cache_read_input_tokens":0}}})"
              "\n");
    return root;
}

fs::path writeCommand(const fs::path &home)
{
    write(home / "result.json", resultRecord() + "\n");
    const fs::path command = home / ".local/bin/claude";
    writeProgram(command, "#!/bin/sh\nread -r line < '" + (home / "result.json").string() +
                              "'\nprintf '%s\\n' \"$line\"\n");
    return command;
}

fs::path writeShell(const fs::path &home)
{
    const fs::path shell = home / "shell";
    writeProgram(shell,
                 "#!/bin/sh\nprintf '%s\\n' '" + (home / ".local/bin/claude").string() + "'\n");
    return shell;
}

} // namespace Faults::SampleHome
