// A file of one test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "support/text_file.h"

namespace metagen::testing {

/// A path in the tests' temporary folder that no other test has, nor the same one of another build,
/// run beside this one; what it names is removed after use. A death test's own process has the same
/// one, even where it starts anew.
class TemporaryFile {
public:
    explicit TemporaryFile(std::string_view name) {
        const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
        std::string user = ::testing::internal::GetArgvs().at(0);
        user.append(1, '/').append(test.test_suite_name()).append(1, '.').append(test.name());
        user.append(1, '/').append(name);
        ownPath =
            ::testing::TempDir() + "metagen_" + std::to_string(std::hash<std::string>()(user));
        clear();  // of what a run left that broke off
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { clear(); }

    const char* path() const { return ownPath.c_str(); }
    std::string read() const { return readOrExit(openForReading(path()), "unreadable"); }
    void write(std::string_view text) const { writeAll(openForWriting(path()).get(), text); }

private:
    void clear() const { std::filesystem::remove_all(ownPath); }

    std::string ownPath;
};

}  // namespace metagen::testing
