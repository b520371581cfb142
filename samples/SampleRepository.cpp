#include "samples/SampleRepository.h"

#include <string>
#include <string_view>

#include "samples/TemporaryFolder.h"

namespace Loadwick::SampleRepository {

namespace {

constexpr std::string_view overview = R"(# Harbor API

Harbor plans berths for three marinas. A request names a boat, its length and two dates; the answer is
a berth or the nearest free dates. The planner is a pure function; everything that touches the
database stands behind `BerthStore`.

- Build: `make`. Test: `make test`. Both must pass before a commit.
- Money is an integer of cents. Lengths are centimetres. Times are UTC until they reach a template.
- A migration is never edited once it is on main.

Read @docs/architecture.md before you move code between folders, and @docs/testing.md before you add a
test. What every assistant should know stands in @AGENTS.md.
)";

constexpr std::string_view agents = R"(# For every assistant

Work on one thing at a time and say what you saw, not what you expect. Ask before you add a dependency.
Keep the public API in `api/openapi.yaml` and the handlers in step; the contract test compares them.
The rules of review are in @docs/review.md.
)";

constexpr std::string_view local = R"(# On this machine

The test database listens on port 5544. The staging tunnel is opened by `bin/tunnel`; never start it
from a test.
)";

constexpr std::string_view inherited = R"(# Everything under Projects

Commits are small and say why. Branches are named after what they change. English in code, in commits
and in documents. No generated files in a repository, and no secrets anywhere.
)";

constexpr std::string_view personal = R"(# How I like to work

Short answers first, reasons when asked. Show the command with every figure. Prefer deleting code to
adding it. My notes on writing are in @~/.claude/notes/writing.md.
)";

/// A heading and `count` numbered rules: as long as such documents tend to be.
std::string rules(std::string_view title, std::string_view rule, int count)
{
    std::string text = "# " + std::string(title) + "\n\n";
    for (int number = 1; number <= count; ++number)
        text += std::to_string(number) + ". " + std::string(rule) + "\n";
    return text;
}

void writeDocuments(const std::filesystem::path &folder)
{
    writeFile(folder / "architecture.md",
              rules("Architecture",
                    "A folder knows only the folders below it: the planner "
                    "knows no store, a store knows no handler.",
                    44));
    writeFile(folder / "testing.md",
              rules("Testing",
                    "A test says in its name what it shows, and fails when that "
                    "is no longer so.",
                    31));
    writeFile(folder / "review.md",
              rules("Review", "Read the tests first; what they do not say is not promised.", 18));
}

} // namespace

std::filesystem::path writeInto(const std::filesystem::path &home)
{
    const std::filesystem::path repository = home / "Projects" / "harbor-api";
    writeFile(repository / ".git" / "HEAD", "ref: refs/heads/main\n");
    writeFile(repository / "CLAUDE.md", overview);
    writeFile(repository / "CLAUDE.local.md", local);
    writeFile(repository / "AGENTS.md", agents);
    writeDocuments(repository / "docs");
    writeFile(home / "Projects" / "CLAUDE.md", inherited);
    writeFile(home / ".claude" / "CLAUDE.md", personal);
    writeFile(home / ".claude" / "notes" / "writing.md",
              rules("Writing", "One thought to a sentence, one subject to a paragraph.", 26));
    return repository;
}

void writeSmallInto(const std::filesystem::path &folder)
{
    if (std::filesystem::exists(folder))
        return;
    writeFile(folder / ".git" / "HEAD", "ref: refs/heads/main\n");
    writeFile(folder / "CLAUDE.md",
              rules("Working here", "Run the tests before and after, and say both.", 24));
}

} // namespace Loadwick::SampleRepository
