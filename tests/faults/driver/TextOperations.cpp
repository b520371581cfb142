#include <array>
#include <string>

#include "faults/driver/Operation.h"
#include "history/RecordedScan.h"
#include "probe/ProbeError.h"
#include "probe/ProbeOutputParser.h"
#include "text/UnicodeText.h"

namespace Faults {

namespace {

namespace fs = std::filesystem;
using Loadwick::ProbeError;

/// An answer that is not a record, and a name, both longer than the limit and in non-ASCII text,
/// which takes the whole Unicode library.
class Texts final : public Operation
{
public:
    Texts() { Loadwick::loadCharacterRules(); }

    void perform() override
    {
        m_error = parsed();
        m_name = Loadwick::RecordedCategoryName::storable(repeated("é", 200));
        m_lower = Loadwick::lowercased("ÄÖ");
    }

    std::optional<std::string> problem(Ending ending,
                                       const std::optional<Fault> &fault) const override
    {
        if (fault && fault->isShortageOfMemoryOrThreads() && ending == Ending::outOfMemory)
            return problemOf(parsed(), "later: ");
        if (ending != Ending::returned)
            return "handling texts threw";
        if (m_name != Loadwick::RecordedCategoryName::withheld || m_lower != "äö")
            return "the wrong name or lower case";
        return problemOf(m_error, "");
    }

private:
    static std::string repeated(std::string_view text, std::size_t count)
    {
        std::string all;
        for (; count > 0; --count)
            all += text;
        return all;
    }

    static std::optional<ProbeError> parsed()
    {
        try {
            (void)Loadwick::ProbeOutputParser::parse(repeated("é", ProbeError::detailLimit + 1), "",
                                                     0);
            return std::nullopt;
        } catch (const ProbeError &error) {
            return error;
        }
    }

    /// Also later: the library must not remember a past shortage of memory forever.
    static std::optional<std::string> problemOf(const std::optional<ProbeError> &error,
                                                const std::string &when)
    {
        if (!error || !std::holds_alternative<ProbeError::UnreadableOutput>(error->value()))
            return when + "an answer that is not a record was read";
        if (error->detail() != repeated("é", ProbeError::detailLimit) + "…")
            return when + "not the text of the answer";
        return std::nullopt;
    }

    std::optional<ProbeError> m_error;
    std::string m_name;
    std::string m_lower;
};

std::unique_ptr<Operation> makeTexts(const fs::path & /*home*/)
{
    return std::make_unique<Texts>();
}

constexpr std::array kinds{OperationKind{"texts", makeTexts}};

} // namespace

std::span<const OperationKind> textOperations()
{
    return kinds;
}

} // namespace Faults
