#include "export/EventCsv.h"

#include "card/RecordEvent.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace VELIX {
namespace {

RecordLimit event(double time, const char* name, const char* value)
{
    RecordLimit limit;
    limit.time = time;
    limit.name = name;
    limit.value = value;
    return limit;
}

TEST(EventCsv, OneLineAnEventQuotedWhereNeeded)
{
    const RecordLimit events[] = {
        event(0.0009, "Lane A \u00D6l", "95.0 "), // no label
        event(3661.9999, "Lane; \"B\"", "1: on\nand off V"),
        event(86400.0, "", ""),
    };
    QBuffer out;
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    EXPECT_TRUE(writeEventCsv({&events[0], &events[1], &events[2]}, out));
    EXPECT_EQ(out.data().toStdString(), "Time;Parameter;Value\n"
                                        "00:00:00.000;Lane A \u00D6l;95.0\n"
                                        "01:01:01.999;\"Lane; \"\"B\"\"\";\"1: on\nand off V\"\n"
                                        "00:00:00.000;;\n");
    QBuffer closed;
    closed.open(QIODevice::ReadOnly);
    EXPECT_FALSE(writeEventCsv({}, closed));
}

} // namespace
} // namespace VELIX
