// SPDX-License-Identifier: GPL-3.0-or-later
#include <presets/action_chain.h>

#include <platform/foundation/literals.h>

#include <support/text_printing.h>

#include <gmock/gmock.h>

using namespace brenvaldo;
using presets::chainText;
using presets::loadChain;
using testing::ElementsAre;

namespace {

class ActionChain : public testing::Test
{
protected:
    [[nodiscard]] QStringList rows() const
    {
        QStringList lines;
        for (const QStringList& row : list.arrangedObjects())
            lines.append(row.value(0));
        return lines;
    }

    controls::ArrayController list{u"cActionsTWMArrayController"_s, {u"cActions"_s}};
    const QString imported = QString(65, u' ');
    const QString loaded = QString(46, u' ');
};

} // namespace

TEST_F(ActionChain, TellsOfNoActions) { EXPECT_EQ(chainText(list), u"NO ACTIONS"_s); }

TEST_F(ActionChain, JoinsRowsWithoutTheirPadding)
{
    list.addObject({u"one\t"_s + imported + u"\tPrefix\tBrenvaldo9\tx\t\t0\t0"_s});
    EXPECT_EQ(chainText(list), u"one\t\tPrefix\tBrenvaldo9\tx\t\t0\t0"_s);

    list.addObject({u"two\t"_s + loaded + u"\tReplace\tBrenvaldo9\t1\t\t\t\t\t"_s});
    EXPECT_EQ(
        chainText(list),
        u"one\t\tPrefix\tBrenvaldo9\tx\t\t0\t0\rtwo\t\tReplace\tBrenvaldo9\t1\t\t\t\t\t"_s
    );
}

TEST_F(ActionChain, ComesBackWithItsOwnPaddingBehindTheRowsThatStand)
{
    list.addObject({u"old"_s});

    loadChain(u"one\t\tStrip\tBrenvaldo9\t2\rtwo\t\tPrefix\tBrenvaldo9"_s, list);
    loadChain(u"one\t\tStrip"_s, list);

    EXPECT_THAT(
        rows(),
        ElementsAre(
            u"old"_s,
            u"one\t"_s + loaded + u"\tStrip\tBrenvaldo9\t2"_s,
            u"two\t"_s + loaded + u"\tPrefix\tBrenvaldo9"_s,
            u"one\t"_s + loaded + u"\tStrip"_s
        )
    );
}

TEST_F(ActionChain, EndsThePaddingOfADamagedRowToo)
{
    loadChain(u"name only\rname\tpadding"_s, list);

    EXPECT_THAT(rows(), ElementsAre(u"name only"_s, u"name\t"_s + loaded + u'\t'));
    EXPECT_EQ(chainText(list), u"name only\rname\t\t"_s);
}
