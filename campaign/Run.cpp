#include "campaign/Run.h"

#include <algorithm>
#include <numeric>
#include <sstream>
#include <stdexcept>

namespace Campaign {

Sheet& Runner::SheetOf(const Target& target) {
    if (!m_sheet || m_sheet->Radio() != target.radio || m_sheet->BandIndex() != target.bandIndex) {
        m_sheet.reset(); // the program has one such page at a time
        m_sheet = std::make_unique<Sheet>(target.radio, target.bandIndex);
    }
    return *m_sheet;
}

Verdict Runner::Run(uint64_t seed, const Reduction& reduction, const Narrator& narrator) {
    Scenario scenario = MakeScenario(seed);
    Reduce(scenario, reduction);
    Sheet& sheet = SheetOf(*scenario.target);
    World world = FirstWorld(scenario, sheet);
    Verdict verdict;
    for (size_t i = 0; i < scenario.jobs.size(); ++i) {
        const Job job = scenario.jobs[i];
        Job clean = job;
        clean.faults.clear();
        const Outcome reference =
            RunJob(scenario, clean, world, sheet, job.faults.empty() ? narrator : Narrator{});
        ++verdict.dialogues;
        verdict.broken = BrokenConditions(scenario, clean, world, reference);
        World next = reference.world;
        if (verdict.broken.empty() && !job.faults.empty()) {
            if (narrator)
                narrator(0, std::string("-- ") + NameOf(job.mode) + ", with faults");
            const Outcome faulty = RunJob(scenario, job, world, sheet, narrator);
            ++verdict.dialogues;
            verdict.broken = BrokenConditions(scenario, job, world, reference, faulty);
            for (size_t fault = 0; fault < job.faults.size(); ++fault)
                if (faulty.happened[fault])
                    ++m_coverage[{scenario.radio.IsDigital(), faulty.states[fault], job.faults[fault].kind}];
            next = faulty.world;
            // What came garbled without a checksum is on the page now; later transfers start from good pages.
            if (!scenario.radio.IsDigital() && job.mode == ReadChannelsMode)
                scenario.jobs.resize(i + 1);
        }
        if (!verdict.broken.empty()) {
            verdict.job = static_cast<int>(i);
            return verdict;
        }
        world = std::move(next);
    }
    return verdict;
}

Reduction Runner::Shrink(uint64_t seed) {
    return SmallestReduction(
        MakeScenario(seed), [&](const Reduction& reduction) { return !Run(seed, reduction).broken.empty(); });
}

Reduction SmallestReduction(const Scenario& scenario, const std::function<bool(const Reduction&)>& fails) {
    Reduction best;
    best.jobs = static_cast<int>(scenario.jobs.size());
    best.rows = static_cast<int>(scenario.rows.size());
    for (const Job& job : scenario.jobs) {
        best.faults.emplace_back(job.faults.size());
        std::iota(best.faults.back().begin(), best.faults.back().end(), size_t{0});
    }
    bool smaller = true;
    const auto attempt = [&](const Reduction& candidate) {
        if (!fails(candidate))
            return;
        best = candidate;
        smaller = true;
    };
    while (smaller) {
        smaller = false;
        if (best.jobs > 1) {
            Reduction candidate = best;
            --candidate.jobs;
            attempt(candidate);
        }
        for (size_t job = 0; job < best.faults.size(); ++job)
            for (size_t fault = best.faults[job].size(); fault-- > 0;) {
                Reduction candidate = best;
                std::vector<size_t>& faults = candidate.faults[job];
                faults.erase(faults.begin() + static_cast<ptrdiff_t>(fault));
                attempt(candidate);
            }
        if (best.rows > 1) {
            Reduction candidate = best;
            --candidate.rows;
            attempt(candidate);
        }
    }
    return best;
}

std::string ArgumentsOf(const Reduction& reduction) {
    std::ostringstream text;
    text << "--jobs " << reduction.jobs << " --rows " << reduction.rows << " --faults ";
    for (size_t job = 0; job < reduction.faults.size(); ++job) {
        text << (job ? "/" : "");
        for (size_t i = 0; i < reduction.faults[job].size(); ++i)
            text << (i ? "," : "") << reduction.faults[job][i];
        if (reduction.faults[job].empty())
            text << '-';
    }
    return text.str();
}

Reduction ReadReduction(const std::vector<std::string>& arguments) {
    Reduction reduction;
    for (size_t i = 0; i + 1 < arguments.size(); i += 2) {
        const std::string& value = arguments[i + 1];
        if (arguments[i] == "--jobs") {
            reduction.jobs = std::stoi(value);
        } else if (arguments[i] == "--rows") {
            reduction.rows = std::stoi(value);
        } else if (arguments[i] == "--faults") {
            std::istringstream jobs(value);
            for (std::string job; std::getline(jobs, job, '/');) {
                reduction.faults.emplace_back();
                std::istringstream faults(job);
                for (std::string fault; job != "-" && std::getline(faults, fault, ',');)
                    reduction.faults.back().push_back(std::stoul(fault));
            }
        } else {
            throw std::runtime_error("unknown argument " + arguments[i]);
        }
    }
    if (arguments.size() % 2 != 0)
        throw std::runtime_error(arguments.back() + " needs a value");
    return reduction;
}

std::string Describe(const Scenario& scenario) {
    std::ostringstream text;
    text << "seed " << scenario.seed << ": " << scenario.target->name << ' ' << scenario.target->band;
    if (scenario.radio.IsDigital())
        text << ", protocol " << scenario.target->protocol << ", firmware " << scenario.target->firmware
             << (scenario.knowsRadio ? ", known" : ", unknown");
    text << "\n  page:";
    for (const auto& [row, texts] : scenario.rows)
        text << ' ' << row << (scenario.shadows.contains(row) ? " (shadow)" : "");
    for (const auto& [row, erased] : scenario.erased)
        text << ' ' << row << " (to be erased)";
    text << "\n  radio:";
    for (const auto& [number, memory] : scenario.radio.digital.memories)
        text << ' ' << number;
    for (const auto& [number, memory] : scenario.radio.analog)
        text << ' ' << number;
    text << '\n';
    for (const Job& job : scenario.jobs) {
        text << "  " << NameOf(job.mode);
        if (job.mode == WriteChannelsMode) {
            text << ", rows";
            for (const auto& [row, selected] : job.selected)
                text << ' ' << row;
        }
        text << '\n';
        for (const Fault& fault : job.faults)
            text << "    " << TextOf(fault) << '\n';
    }
    return text.str();
}

} // namespace Campaign
