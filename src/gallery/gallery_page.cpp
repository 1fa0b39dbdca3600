// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_page.h"

#include "html_text.h"
#include "web_fonts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::gallery {

namespace {

QString opening()
{
    return u"<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
           "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\">\n"
           "<html xmlns=\"http://www.w3.org/1999/xhtml\">\n<head>\n"_s;
}

bool isGrid(const PageValues& values) { return values.model == PageModel::Grid; }

QString stylesheetLink(const PageValues& values)
{
    const QString comment = isGrid(values) ? u"<!-- dravoth: responsive design -->\n"_s
                                           : u"<!-- dravoth: responsive design - Begin -->\n"_s;
    return comment
        + u"<link href=\"DVcss/dvGScss.css\" rel=\"stylesheet\" type=\"text/css\">\n"
          "<!-- dravoth: lightbox -->\n"_s;
}

QString scripts(const PageValues& values)
{
    const QString lightbox
        = values.showsCaptionsInLightbox ? u"jquery02.lightbox.js"_s : u"jquery.lightbox.js"_s;
    return u"<script type=\"text/javascript\" "
           "src=\"https://ajax.googleapis.com/ajax/libs/jquery/1.9.1/jquery.min.js\"></script>\n"
           "<script type=\"text/javascript\" src=\"DVpglightbox/%1\"></script>"
           "\n\n<script>\n$(function() {\n$('.dvPGimg a').lightbox();\n});\n</script>\n\n"_s.arg(
               lightbox
           );
}

QString fontComment(const PageValues& values)
{
    const QString end
        = isGrid(values) ? QString() : u"<!-- dravoth: responsive design - End -->\n"_s;
    return end + u"<!-- dravoth: Roboto, from Google fonts -->\n"_s;
}

QString head(const PageValues& values)
{
    return opening()
        + u"<meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\" />\n"
          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1.0\" />\n"_s
        + u"<title>"_s + values.pageTitle + u"</title>\n"_s + stylesheetLink(values)
        + scripts(values) + fontComment(values) + fontLink(values.fontFamily) + u"</head>\n"_s;
}

QString bodyOpening(const PageValues& values)
{
    const QString grid = isGrid(values) ? u"grid"_s : u"responsive design grid"_s;
    return u"<body>\n"
           "<!-- dravoth: responsive design main container - Begin -->\n"
           "<div class=\"DVpgTableBased-container\">\n"
           "<!-- dravoth: Background pattern - Begin -->\n"
           "<div class=\"dvSsPatternBox\">\n"_s
        + u"<div style=\"width:"_s + values.width + u"%;margin: auto;\"><!-- dravoth: "_s + grid
        + u" - Begin -->\n"_s;
}

QString navigation(const PageValues& values)
{
    if (values.pageCount <= 1)
        return {};
    const QString base = linkText(values.baseName);
    QString text = u"<div id=\"navBar\" class=\"dvPGpageNav\" "
                   "style=\"width:100%;padding:6px;text-align:left;\">"
                   "<a href=\""_s
        + base + u".html\"> 1 </a>"_s;
    for (int number = 2; number <= values.pageCount; ++number) {
        const QString digits = QString::number(number);
        text += u"<a href=\""_s + base + digits + u".html\">"_s + digits + u" </a>"_s;
    }
    return text + u"</div>"_s;
}

QString heading(const PageValues& values)
{
    if (!values.showsHeading)
        return {};
    const QString end = isGrid(values) ? u"<br><br></div>\n"_s : u"</div>\n"_s;
    return u"<div class=\"dvPGtitle\">"_s + values.heading + end;
}

QString thumbnail(const PageValues& values, const GalleryPicture& picture)
{
    const QString name = htmlText(picture.name);
    const QString link = linkText(picture.name);
    QString text = u"<a href=\"DVimages_b/"_s + link + u'.' + values.largeFormat
        + u"\" rel=\"dvPGlightbox\" title=\""_s;
    if (values.showsMetadata && values.showsFileNames)
        text += name + u"; "_s;
    return text + name + u"\">\n"_s + u"<img src=\"DVimages_s/"_s + link + u'.'
        + values.thumbnailFormat + u"\" alt=\""_s + name
        + u"\" width=\"auto\" height=\"auto\">\n</a>\n"_s;
}

// In the grid a picture closes one element more than it opens; browsers pass over it.
QString imageBlock(const PageValues& values, const GalleryPicture& picture)
{
    QString text = isGrid(values) ? QString() : u"<div class=\"dvPGresponsive\">\n"_s;
    text += u"<div class=\"dvPGimg\">\n"_s + thumbnail(values, picture) + u"</div>\n"_s;
    if (values.showsFileNames)
        text += u"<div class=\"dvPGphotoname\">"_s + htmlText(picture.name) + u"</div>\n"_s;
    if (values.showsMetadata)
        text += u"<div class=\"dvPGdescription\">"_s + picture.caption + u"</div>\n"_s;
    return text + u"</div>\n"_s;
}

QString footer(const PageValues& values)
{
    const QString scheme = isGrid(values) ? u"https"_s : u"http"_s;
    return u"<div style=\"width:100%;padding:6px;float:left;\">\n"
           "<div style=\"float:left;padding:6px;\">"_s
        + u"<a href=\""_s + scheme + u"://"_s + values.productSite
        + u"\"><img src=\"DVpglightbox/BrenvaldoS.png\" alt=\"Brenvaldo\" "
          "width=\"auto\" height=\"auto\"></a></div>\n</div>\n"_s;
}

QString gridEnd() { return u"</div><!-- dravoth: grid - End -->\n"_s; }

QString pageEnd()
{
    return u"</div><!-- dravoth: Background pattern - End -->\n"
           "</div><!-- dravoth: responsive design main container - End -->\n"
           "</body>\n</html>"_s;
}

} // namespace

QString pageName(const QString& baseName, int number)
{
    return number == 1 ? baseName + u".html"_s : baseName + QString::number(number) + u".html"_s;
}

QString galleryPage(const PageValues& values, const QList<GalleryPicture>& pictures)
{
    QString page = head(values) + bodyOpening(values) + navigation(values) + heading(values);
    if (isGrid(values))
        page += u"<div class=\"dvPGimages\">\n"_s;
    for (const GalleryPicture& picture : pictures)
        page += imageBlock(values, picture);
    page += isGrid(values) ? gridEnd() + footer(values) : footer(values) + gridEnd();
    return page + pageEnd();
}

QString redirectPage(const QString& baseName)
{
    return opening()
        + u"<head>/n<meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\" />/n"
          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1.0\" />/n"
          "<title>my first responsive designed picture gallery</title>/n"
          "<script>window.location.href = \""_s
        + linkText(baseName) + u".html\"</script>\n</head>\n<body></body>"_s;
}

} // namespace brenvaldo::gallery
