#include "update/ReleaseNotes.h"

#include "support/Printing.h"

#include <QList>

#include <gtest/gtest.h>

namespace aerolith {

using namespace Qt::StringLiterals;

TEST(ReleaseNotes, AreTextToRead)
{
    const QList<std::pair<QString, QString>> cases{
        {u"  Plain text.\nIts  lines\tstay.\r\n\n\n\nR&D: a < b && c > d, 1<2 \n"_s,
         u"Plain text.\nIts lines stay.\n\nR&D: a < b && c > d, 1<2"_s},
        {u"<h2>New\nthings</h2><ul>\n <li>One</li>\n <li>\n<b>T</b>wo</li><li></li></ul>Bye<br>now<br><br>!"_s,
         u"New things\n\n\u2022 One\n\u2022 Two\n\nBye\nnow\n\n!"_s},
        {u"<p>a</P >\n\n<DIV class='x>'>b</div><table><tr><td>c</td><td>d</td></tr></table>"_s,
         u"a\n\n'>b\n\nc d"_s},
        {u"<pre>x\n  y</pre>z\nz"_s, u"x\ny\n\nz z"_s},
        {u"a<script>alert('<p>')</SCRIPT x>b<style>p{}</style>c<!-- <p>d -->e<?php f ?>g"_s, u"abceg"_s},
        {u"a<script>never closed"_s, u"a"_s},
        {u"a<!-- never closed"_s, u"a"_s},
        {u"a<b never closed"_s, u"a"_s},
        {u"&lt;b&gt; &amp;amp; &quot;&#8364;&#x1F600;&#X41;&hellip;&nbsp;!"_s,
         u"<b> &amp; \"\u20AC\U0001F600A\u2026\u00A0!"_s},
        {u"&unknown; &#; &#x; &#xD800; &#1114112; &#0;&#27;[2J &; &"_s,
         u"&unknown; &#; &#x; \uFFFD \uFFFD [2J &; &"_s},
        {u"<img src='https://example.org/track.png' onerror='x()'>\u001B[31m\u2029red"_s, u"[31m red"_s},
    };
    for (const auto& [notes, text] : cases) {
        EXPECT_EQ(readableNotes(notes), text) << notes.toStdString();
    }
}

// What takes long by their length takes longer than a test may.
TEST(ReleaseNotes, TakeLittleTimeAndRoomWhateverIsInThem)
{
    constexpr qsizetype megabyte = 1'000'000;
    for (const QString& part :
         {u"<"_s, u"<a"_s, u"&"_s, u"&#1"_s, u"<!--"_s, u"<script>"_s, u"<br>"_s, u"\n"_s}) {
        EXPECT_LE(readableNotes(part.repeated(megabyte / part.size())).size(), 20'001) << part.toStdString();
    }
    EXPECT_TRUE(readableNotes(u"long "_s.repeated(megabyte)).endsWith(u'\u2026'));
}

} // namespace aerolith
