#include "app/hilfekapitel.hpp"
#include "tests/qt/form_table.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace quittika::test {
namespace {

TEST(Handbuch, JedesFensterHatSeinKapitel) {
    std::ostringstream seite;
    seite << std::ifstream("startbenutzerhandbuch.htm").rdbuf();
    ASSERT_GT(seite.str().size(), 100000U);
    for (const MakeForm bauen : kForms) {
        const std::string name = bauen()->name();
        const std::string kapitel(HILFEKAPITEL(name));
        EXPECT_NE(kapitel, "") << name;
        EXPECT_NE(seite.str().find(" id=\"" + kapitel + "\""), std::string::npos) << name;
    }
}

} // namespace
} // namespace quittika::test
