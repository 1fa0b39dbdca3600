// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>

#include <support/log_lines.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>

#include <stdexcept>

using namespace brenvaldo;

namespace {

class Raising : public QObject
{
protected:
    bool event(QEvent*) override { throw std::runtime_error("no memory for the picture"); }
};

} // namespace

TEST(Application, GoesOnAfterAnExceptionInTheHandlingOfAnEvent)
{
    const test::LogLines log;
    Raising receiver;
    QEvent event(QEvent::User);

    QCoreApplication::sendEvent(&receiver, &event);

    EXPECT_EQ(log.lines(), QStringList{u"no memory for the picture"_s});
}
