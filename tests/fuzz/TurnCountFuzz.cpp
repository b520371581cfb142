#include "fuzz/FuzzTarget.h"
#include "fuzz/JsonOracle.h"
#include "probe/ProbeRunner.h"

namespace Loadwick {

namespace {

void checkTurnCount(std::string_view input)
{
    const auto turns = ProbeRunner::reportedTurns(input);
    const JsonOracle oracle = JsonOracle::of(input);
    if (!oracle.isJudge)
        return;
    const nlohmann::json *const object = oracle.object ? &*oracle.object : nullptr;
    require(turns == JsonOracle::integer(JsonOracle::find(object, "num_turns")),
            "the turns are the exact integer of the record");
}

const FuzzTarget target("TurnCount", checkTurnCount);

} // namespace

} // namespace Loadwick
