// Gallery command: every widget, page and dialog of the library rendered to
// pictures, with an index page to look at them side by side.

#include "commands.h"
#include "gallery.h"

#include <QApplication>
#include <QDir>

namespace Tool {

int galleryCommand(Context &ctx)
{
    if (ctx.args.size() != 1)
        return usageError(ctx, "gallery", QStringLiteral("expects DIR"));
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        ctx.err << "libcontrol gallery: needs a graphical application object\n";
        return Failed;
    }
    QString const dir = ctx.args.first();
    if (!QDir().mkpath(dir)) {
        ctx.err << "libcontrol gallery: cannot create " << dir << '\n';
        return Failed;
    }
    Gallery gallery(dir);
    shootWidgets(gallery);
    shootTaxPage(gallery);
    shootWorksheetPages(gallery);
    shootDialogs(gallery);
    for (QString const &line : gallery.lines())
        ctx.out << line << '\n';
    if (!gallery.writeIndex()) {
        ctx.err << "libcontrol gallery: cannot write " << gallery.indexPath() << '\n';
        return Failed;
    }
    ctx.out << "index: " << gallery.indexPath() << '\n';
    return gallery.failures() == 0 ? Ok : Failed;
}

} // namespace Tool
