// Loading and merging all contacts, beside the same rows read with SQLite's own interface into a sorted vector.

#include "mergedcontacts.h"
#include "phonebench.h"
#include "plainrows.h"

namespace {

using namespace PhoneBench;

/// The two stores are new in each pass, so that nothing of the last one is left in memory.
void ours(benchmark::State &state)
{
    const PhoneHome &home = phoneWith(int(state.range(0))).home;
    Passes passes(state);
    for (auto _ : state) {
        const ContactManager local(home.contactDatabase());
        const Stopwatch watch;
        WpsmContactManager mobile(home.mobileFolder());
        const MergedContacts merged(local.getAllContacts(), mobile.getAllContacts());
        passes.add(watch);
        if (merged.size() != state.range(0))
            state.SkipWithError("contacts were lost");
    }
    passes.report();
}

void sqlite(benchmark::State &state)
{
    const PhoneHome &home = phoneWith(int(state.range(0))).home;
    Passes passes(state);
    for (auto _ : state) {
        const Stopwatch watch;
        const std::vector<PlainRows::Record> records = PlainRows::readSorted(home);
        passes.add(watch);
        if (std::int64_t(records.size()) != state.range(0))
            state.SkipWithError("contacts were lost");
    }
    passes.report();
}

}

int main(int argc, char **argv)
{
    return run(argc, argv, [] {
        for (const int count : {300, 10000, 100000}) {
            const int passes = qMax(5, 20000 / count);
            add("load/ours", ours, count, passes);
            add("load/SQLite", sqlite, count, passes);
        }
    });
}
