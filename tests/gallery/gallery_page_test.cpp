// SPDX-License-Identifier: GPL-3.0-or-later
#include <gallery/gallery_page.h>

#include <platform/foundation/literals.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::gallery;

namespace {

PageValues values(PageModel model)
{
    return {
        .model = model,
        .baseName = u"trip"_s,
        .pageCount = 1,
        .pageTitle = u"My <trip>"_s,
        .width = u"80"_s,
        .fontFamily = u"Exo 2"_s,
        .heading = u"<b>Bordeaux</b>"_s,
        .showsHeading = true,
        .showsFileNames = true,
        .showsMetadata = true,
        .showsCaptionsInLightbox = true,
        .thumbnailFormat = u"png"_s,
        .largeFormat = u"jpeg"_s,
        .productSite = u"www.brenvaldo.example"_s};
}

const QList<GalleryPicture> onePicture = {{u"a.b"_s, u"At <br>sea"_s}};

} // namespace

TEST(GalleryPage, OfTheTableModelIsThisText)
{
    EXPECT_EQ(
        galleryPage(values(PageModel::Table), onePicture),
        uR"(<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Transitional//EN" "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd">
<html xmlns="http://www.w3.org/1999/xhtml">
<head>
<meta http-equiv="Content-Type" content="text/html; charset=UTF-8" />
<meta name="viewport" content="width=device-width, initial-scale=1.0" />
<title>My <trip></title>
<!-- dravoth: responsive design - Begin -->
<link href="DVcss/dvGScss.css" rel="stylesheet" type="text/css">
<!-- dravoth: lightbox -->
<script type="text/javascript" src="https://ajax.googleapis.com/ajax/libs/jquery/1.9.1/jquery.min.js"></script>
<script type="text/javascript" src="DVpglightbox/jquery02.lightbox.js"></script>

<script>
$(function() {
$('.dvPGimg a').lightbox();
});
</script>

<!-- dravoth: responsive design - End -->
<!-- dravoth: Roboto, from Google fonts -->
<link href="https://fonts.googleapis.com/css?family=Exo+2:300,400,500,700,900" rel="stylesheet">
</head>
<body>
<!-- dravoth: responsive design main container - Begin -->
<div class="DVpgTableBased-container">
<!-- dravoth: Background pattern - Begin -->
<div class="dvSsPatternBox">
<div style="width:80%;margin: auto;"><!-- dravoth: responsive design grid - Begin -->
<div class="dvPGtitle"><b>Bordeaux</b></div>
<div class="dvPGresponsive">
<div class="dvPGimg">
<a href="DVimages_b/a.b.jpeg" rel="dvPGlightbox" title="a.b; a.b">
<img src="DVimages_s/a.b.png" alt="a.b" width="auto" height="auto">
</a>
</div>
<div class="dvPGphotoname">a.b</div>
<div class="dvPGdescription">At <br>sea</div>
</div>
<div style="width:100%;padding:6px;float:left;">
<div style="float:left;padding:6px;"><a href="http://www.brenvaldo.example"><img src="DVpglightbox/BrenvaldoS.png" alt="Brenvaldo" width="auto" height="auto"></a></div>
</div>
</div><!-- dravoth: grid - End -->
</div><!-- dravoth: Background pattern - End -->
</div><!-- dravoth: responsive design main container - End -->
</body>
</html>)"_s
    );
}

TEST(GalleryPage, OfTheGridModelIsThisText)
{
    PageValues page = values(PageModel::Grid);
    page.pageCount = 3;
    page.showsCaptionsInLightbox = false;
    EXPECT_EQ(
        galleryPage(page, onePicture),
        uR"(<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Transitional//EN" "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd">
<html xmlns="http://www.w3.org/1999/xhtml">
<head>
<meta http-equiv="Content-Type" content="text/html; charset=UTF-8" />
<meta name="viewport" content="width=device-width, initial-scale=1.0" />
<title>My <trip></title>
<!-- dravoth: responsive design -->
<link href="DVcss/dvGScss.css" rel="stylesheet" type="text/css">
<!-- dravoth: lightbox -->
<script type="text/javascript" src="https://ajax.googleapis.com/ajax/libs/jquery/1.9.1/jquery.min.js"></script>
<script type="text/javascript" src="DVpglightbox/jquery.lightbox.js"></script>

<script>
$(function() {
$('.dvPGimg a').lightbox();
});
</script>

<!-- dravoth: Roboto, from Google fonts -->
<link href="https://fonts.googleapis.com/css?family=Exo+2:300,400,500,700,900" rel="stylesheet">
</head>
<body>
<!-- dravoth: responsive design main container - Begin -->
<div class="DVpgTableBased-container">
<!-- dravoth: Background pattern - Begin -->
<div class="dvSsPatternBox">
<div style="width:80%;margin: auto;"><!-- dravoth: grid - Begin -->
<div id="navBar" class="dvPGpageNav" style="width:100%;padding:6px;text-align:left;"><a href="trip.html"> 1 </a><a href="trip2.html">2 </a><a href="trip3.html">3 </a></div><div class="dvPGtitle"><b>Bordeaux</b><br><br></div>
<div class="dvPGimages">
<div class="dvPGimg">
<a href="DVimages_b/a.b.jpeg" rel="dvPGlightbox" title="a.b; a.b">
<img src="DVimages_s/a.b.png" alt="a.b" width="auto" height="auto">
</a>
</div>
<div class="dvPGphotoname">a.b</div>
<div class="dvPGdescription">At <br>sea</div>
</div>
</div><!-- dravoth: grid - End -->
<div style="width:100%;padding:6px;float:left;">
<div style="float:left;padding:6px;"><a href="https://www.brenvaldo.example"><img src="DVpglightbox/BrenvaldoS.png" alt="Brenvaldo" width="auto" height="auto"></a></div>
</div>
</div><!-- dravoth: Background pattern - End -->
</div><!-- dravoth: responsive design main container - End -->
</body>
</html>)"_s
    );
}

TEST(GalleryPage, HasNoNavigationWhenItIsTheOnlyOne)
{
    PageValues page = values(PageModel::Table);
    EXPECT_FALSE(galleryPage(page, {}).contains(u"navBar"_s));
    page.pageCount = 2;
    EXPECT_TRUE(galleryPage(page, {}).contains(u"navBar"_s));
}

TEST(GalleryPage, LeavesOutWhatIsNotShown)
{
    PageValues page = values(PageModel::Table);
    page.showsFileNames = false;
    QString text = galleryPage(page, onePicture);
    EXPECT_TRUE(text.contains(u"title=\"a.b\">"_s));
    EXPECT_FALSE(text.contains(u"dvPGphotoname"_s));
    EXPECT_TRUE(text.contains(u"dvPGdescription"_s));

    page.showsFileNames = true;
    page.showsMetadata = false;
    text = galleryPage(page, onePicture);
    EXPECT_TRUE(text.contains(u"title=\"a.b\">"_s));
    EXPECT_TRUE(text.contains(u"dvPGphotoname"_s));
    EXPECT_FALSE(text.contains(u"dvPGdescription"_s));

    page.showsHeading = false;
    EXPECT_FALSE(galleryPage(page, onePicture).contains(u"dvPGtitle"_s));
}

TEST(GalleryPage, KeepsAnEmptyDescription)
{
    EXPECT_TRUE(galleryPage(
                    values(PageModel::Table), {{u"a"_s, {}}}
    ).contains(u"<div class=\"dvPGdescription\"></div>\n"_s));
}

TEST(GalleryPage, EscapesNamesOfPhotos)
{
    const QString text = galleryPage(values(PageModel::Table), {{u"5% <\"x\"> & #1"_s, QString()}});
    EXPECT_TRUE(text.contains(u"DVimages_b/5%25 %3C%22x%22%3E &amp; %231.jpeg\""_s));
    EXPECT_TRUE(text.contains(u"alt=\"5% &lt;&quot;x&quot;&gt; &amp; #1\""_s));
    EXPECT_TRUE(text.contains(u"<div class=\"dvPGphotoname\">5% &lt;&quot;x&quot;&gt; &amp; #1<"_s)
    );
}

TEST(PageName, NumbersAllPagesButTheFirst)
{
    EXPECT_EQ(pageName(u"trip"_s, 1), u"trip.html"_s);
    EXPECT_EQ(pageName(u"trip"_s, 2), u"trip2.html"_s);
    EXPECT_EQ(pageName(u"trip"_s, 11), u"trip11.html"_s);
}

TEST(RedirectPage, IsThisText)
{
    EXPECT_EQ(
        redirectPage(u"my trip"_s),
        uR"(<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Transitional//EN" "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd">
<html xmlns="http://www.w3.org/1999/xhtml">
<head>
<head>/n<meta http-equiv="Content-Type" content="text/html; charset=UTF-8" />/n<meta name="viewport" content="width=device-width, initial-scale=1.0" />/n<title>my first responsive designed picture gallery</title>/n<script>window.location.href = "my trip.html"</script>
</head>
<body></body>)"_s
    );
}
