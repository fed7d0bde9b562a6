#include "bench.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <map>
#include <string_view>
#include <vector>

namespace orl::bench {

namespace {

/// What the engine is to reach, as times the first peer; "owed / aim".
struct Bar {
    const char *row;
    const char *times;
};
constexpr Bar bars[] = {
    {"parse and destroy, documentation", "10 / 15; gumbo 20 / 30"},
    {"parse and destroy, messages 1 MB", "12 / 20"},
    {"parse and destroy, attributes 1 MB", "6 / 10"},
    {"elements of a class, first call, messages 1 MB", "6 / 10"},
    {"text, documentation", "5 / 8"},
    {"outerHtml, messages 1 MB", "6 / 12"},
};

std::string barOf(const std::string &row) {
    const auto *bar =
        std::find_if(std::begin(bars), std::end(bars), [&](const Bar &b) { return b.row == row; });
    return bar == std::end(bars) ? "" : bar->times;
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::string format(const char *form, double value) {
    char text[64];
    std::snprintf(text, sizeof text, form, value);
    return text;
}

std::string processor() {
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);)
        if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
    return "unknown processor";
}

class TableReporter final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context &context) override {
        machine_ = processor() + ", " + std::to_string(context.cpu_info.num_cpus) + " cores, " + __VERSION__;
        return true;
    }

    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const std::string &name = run.run_name.function_name;
            const auto first = name.find('/'), last = name.rfind('/');
            Cell &cell = groups_[name.substr(0, first)].cellOf(name.substr(first + 1, last - first - 1),
                                                               name.substr(last + 1), run.family_index);
            cell.seconds.push_back(run.real_accumulated_time / double(run.iterations));
            for (const auto &[key, counter] : run.counters)
                cell.counters[key].push_back(counter.value);
        }
    }

    void Finalize() override {
        for (auto &[name, group] : groups_)
            group.sort();
        std::printf("%s\n\nMedians of the processor's time.\n", machine_.c_str());
        printOperations();
        printSelect();
        printPlain("repeated", "repeated lookup on an unchanged tree, ns per element (at most 2)", "ns",
                   "%.2f");
        printPlain("heap", "heap bytes per byte of input (at most 4; 6 at 30 KB)", "per_byte", "%.2f");
        printTwice();
    }

private:
    struct Cell {
        std::int64_t place = 0; ///< in the order of registration
        std::vector<double> seconds;
        std::map<std::string, std::vector<double>> counters;
    };
    struct Row {
        std::string name;
        std::int64_t place = 0;
        std::vector<std::pair<std::string, Cell>> cells;

        const Cell *find(std::string_view column) const {
            for (const auto &[name_, cell] : cells)
                if (name_ == column) return &cell;
            return nullptr;
        }
    };
    /// Runs come in random order; rows and columns are printed as they were registered.
    struct Group {
        std::vector<Row> rows;

        void sort() {
            std::sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) { return a.place < b.place; });
            for (Row &row : rows)
                std::sort(row.cells.begin(), row.cells.end(),
                          [](const auto &a, const auto &b) { return a.second.place < b.second.place; });
        }

        Cell &cellOf(const std::string &row, const std::string &column, std::int64_t place) {
            auto found = std::find_if(rows.begin(), rows.end(), [&](const Row &r) { return r.name == row; });
            if (found == rows.end()) found = rows.insert(rows.end(), Row{row, place, {}});
            for (auto &[name, cell] : found->cells)
                if (name == column) return cell;
            found->place = std::min(found->place, place);
            return found->cells.emplace_back(column, Cell{place, {}, {}}).second;
        }
    };

    static std::string timesOf(const Row &row, const char *peer) {
        const Cell *const ours = row.find("orl"), *const theirs = row.find(peer);
        return ours && theirs ? format("%.1f", median(theirs->seconds) / median(ours->seconds)) : "";
    }

    void printOperations() {
        std::printf("\n| operation, input | MB/s | times libxml2 | times gumbo | owed / aim |\n"
                    "|---|---|---|---|---|\n");
        for (const Row &row : groups_["operation"].rows) {
            const Cell *const ours = row.find("orl");
            const auto rate = ours->counters.find("bytes_per_second");
            std::printf("| %s | %.0f | %s | %s | %s |\n", row.name.c_str(), median(rate->second) / 1e6,
                        timesOf(row, "libxml2").c_str(), timesOf(row, "gumbo").c_str(),
                        barOf(row.name).c_str());
        }
    }

    void printSelect() {
        std::printf("\n| compiled selector | ms | times the class alone (at most 1.5) |\n|---|---|---|\n");
        for (const Row &row : groups_["select"].rows) {
            const double alone = median(row.cells.front().second.seconds);
            for (const auto &[query, cell] : row.cells)
                std::printf("| `%s`, %s | %.4f | %.2f |\n", query.c_str(), row.name.c_str(),
                            1e3 * median(cell.seconds), median(cell.seconds) / alone);
        }
    }

    void printPlain(const std::string &group, const char *title, const std::string &counter,
                    const char *form) {
        const std::vector<Row> &rows = groups_[group].rows;
        if (rows.empty()) return;
        std::printf("\n| %s |", title);
        for (const auto &[column, cell] : rows.front().cells)
            std::printf(" %s |", column.c_str());
        std::printf("\n|---|");
        for (std::size_t i = 0; i < rows.front().cells.size(); ++i)
            std::printf("---|");
        for (const Row &row : rows) {
            std::printf("\n| %s |", row.name.c_str());
            for (const auto &[column, cell] : row.cells)
                std::printf(" %s |", format(form, median(cell.counters.at(counter))).c_str());
        }
        std::printf("\n");
    }

    void printTwice() {
        std::printf(
            "\n| shape | size | seconds | for twice the input (at most 2.3 times) |\n|---|---|---|---|\n");
        for (const Row &row : groups_["twice"].rows) {
            const auto &counters = row.cells.front().second.counters;
            std::printf("| %s | %.0f | %.2f | %.2f |\n", row.name.c_str(), median(counters.at("size")),
                        median(counters.at("seconds")), median(counters.at("ratio")));
        }
    }

    std::string machine_;
    std::map<std::string, Group> groups_;
};

} // namespace

benchmark::BenchmarkReporter &tableReporter() {
    static TableReporter reporter;
    return reporter;
}

} // namespace orl::bench
