#include "setup/command/CommandLine.h"

#include "tests/support/PrintQt.h"

#include <gtest/gtest.h>

using namespace tarvo;
using namespace Qt::StringLiterals;

TEST(CommandLine, TakesWhatACommandHasAndRefusesTheRest)
{
    const auto read = [](const QString &line) {
        return commandFrom(u"tarvo-setup "_s.append(line).split(u' ', Qt::SkipEmptyParts));
    };
    for (const QString &line : {u""_s, u"--force"_s, u"list --json"_s, u"check"_s, u"show --json"_s,
                                u"reset --system"_s, u"use 12d1:1 --force --system"_s, u"exclude 12d1:1"_s})
        EXPECT_EQ(read(line).error, QString()) << line.toStdString();
    const std::pair<QString, QString> wrong[] = {
        {u"lists"_s, u"lists: see"_s},
        {u"list check"_s, u"list check: see"_s},
        {u"reset 12d1:1"_s, u"reset 12d1:1: see"_s},
        {u"use"_s, u"use: see"_s},
        {u"use 1:2 3:4"_s, u"use 1:2 3:4: see"_s},
        {u"exclude x"_s, u"a device is VENDOR:PRODUCT"_s},
        {u"--json"_s, u"--json is for"_s},
        {u"use 12d1:1 --json"_s, u"--json is for"_s},
        {u"--system"_s, u"--system is for"_s},
        {u"check --system"_s, u"--system is for"_s},
        {u"--other"_s, u"Unknown option"_s},
    };
    for (const auto &[line, start] : wrong)
        EXPECT_TRUE(read(line).error.startsWith(start)) << line.toStdString() << ": " << read(line).error.toStdString();

    const Command use = read(u"use 12d1:1f --force"_s);
    EXPECT_EQ(use.words, (QStringList{u"use"_s, u"12d1:1f"_s}));
    EXPECT_TRUE(use.device == (DeviceId{0x12d1, 0x1f}) && use.force && !use.asJson && use.scope == Scope::User);
    EXPECT_TRUE(read(u"list --json"_s).asJson && read(u"reset --system"_s).scope == Scope::System);
    for (const auto &[line, output] :
         {std::pair(u"-h lists"_s, u" [options] [command]"_s), {u"-v x"_s, u"tarvo-setup "_s}})
        EXPECT_TRUE(read(line).output.contains(output) && read(line).error.isEmpty()) << line.toStdString();
}
