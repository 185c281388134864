#include "simulator/demo/DemoDevice.h"

#include "simulator/demo/DemoCalls.h"
#include "simulator/demo/DemoPeople.h"

#include <chrono>
#include <filesystem>

namespace sim {

namespace fs = std::filesystem;

namespace {

const fs::path addressBook = "var/mobile/Library/AddressBook/AddressBook.sqlitedb";
const fs::path coreDataHistory = "var/mobile/Library/CallHistoryDB/CallHistory.storedata";
const fs::path keyValueHistory = "var/wireless/Library/CallHistory/call_history.db";
const fs::path product = "Library/Zelvora";

// Lets `make` fill a database that is not there yet; half a one does not stay.
template<typename Make>
void makeOnce(const fs::path &path, Make make) {
    if (fs::exists(path))
        return;
    fs::create_directories(path.parent_path());
    try {
        make(path.string());
    } catch (...) {
        std::error_code ignored;
        fs::remove(path, ignored);
        throw;
    }
}

void makeAddressBook(const std::string &path, const std::vector<Person> &people) {
    AddressBookFile file(path);
    SqlTransaction transaction(file.sql());
    for (const Person &person : people)
        file.add(person);
    transaction.commit();
}

void makeCallHistory(const std::string &path, CallHistoryForm form, const std::vector<Call> &calls) {
    CallHistoryFile file(path, form);
    SqlTransaction transaction(file.sql());
    for (const Call &call : calls)
        file.add(call);
    transaction.commit();
}

void installCatalogs(const fs::path &device) {
    fs::create_directories(device / product);
    fs::copy(ZV_DEMO_FILES, device / product, fs::copy_options::recursive | fs::copy_options::skip_existing);
}

} // namespace

void makeDemoDevice(const std::string &folder, const DemoOptions &options) {
    const fs::path device = folder;
    const std::vector<Person> people = makePeople(options.contacts, options.seed);
    const std::vector<Call> calls = makeCalls(options.calls, people, options.now, options.seed);
    makeOnce(device / addressBook, [&](const std::string &path) { makeAddressBook(path, people); });
    makeOnce(device / coreDataHistory,
             [&](const std::string &path) { makeCallHistory(path, CallHistoryForm::coreData, calls); });
    makeOnce(device / keyValueHistory,
             [&](const std::string &path) { makeCallHistory(path, CallHistoryForm::keyValue, calls); });
    installCatalogs(device);
}

void installTool(const std::string &folder, const std::string &tool) {
    const fs::path place = fs::path(folder) / product / "zvtool";
    fs::create_directories(place.parent_path());
    fs::copy_file(tool, place, fs::copy_options::overwrite_existing);
}

double currentTime() {
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
}

} // namespace sim
