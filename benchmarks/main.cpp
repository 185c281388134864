// Runs the benchmarks. usage: zv_bench [--json FILE] [FILTER]     FILTER: a regular expression on their names
// Ends with 0 when every bar is held, 1 when one is not, 2 when nothing could be measured.
#include "Child.h"
#include "Folder.h"
#include "host/PrivateDefaults.h"
#include "Report.h"

#include <cstdio>
#include <cstring>
#include <regex>

namespace {

struct Request {
    std::regex filter{""};
    std::string json;
};

int complain(const std::string &problem) {
    std::fprintf(stderr, "zv_bench: %s\n", problem.c_str());
    return 2;
}

int usage() {
    return complain("usage: [FILTER] [--json FILE]");
}

int run(const Request &request) {
    bench::Report report;
    for (const bench::Benchmark &benchmark : bench::benchmarks()) {
        if (!std::regex_search(benchmark.name, request.filter))
            continue;
        if (report.isEmpty())
            report.begin();
        report.add(benchmark, bench::inChild(benchmark.measure));
    }
    if (report.isEmpty())
        return complain("no benchmark is called that");
    if (!request.json.empty() && !report.writeJSON(request.json))
        return complain("cannot write " + request.json);
    return report.allHeld() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    Request request;
    bool filtered = false;
    try {
        for (int i = 1; i < argc; ++i) {
            if (std::strcmp(argv[i], "--json") == 0 && i + 1 < argc) {
                request.json = argv[++i];
            } else if (argv[i][0] == '-' || filtered) {
                return usage();
            } else {
                request.filter = std::regex(argv[i], std::regex::icase);
                filtered = true;
            }
        }
        host::usePrivateDefaults();
        (void)bench::folder(); // of this process, not of one of its children
        const int result = run(request);
        bench::removeFolder();
        return result;
    } catch (const std::exception &error) {
        return complain(error.what());
    }
}
