#include "support/FakeProbe.h"

#include "samples/SampleReport.h"

namespace Loadwick {

FakeProbe::FakeProbe() : answer(sampleProbeResult) {}

ProbeResult FakeProbe::run(const std::filesystem::path &repository)
{
    m_runs.push_back(repository);
    return answer();
}

} // namespace Loadwick
