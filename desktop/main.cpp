#include "desktop/app.h"

int main(int argumentCount, char** arguments) {
    const veraqua::StartOptions options = veraqua::ReadStartOptions(argumentCount, arguments);
    if (options.ExitStatus) return *options.ExitStatus;
    veraqua::ReadFontsAhead();
    QApplication app(argumentCount, arguments);
    veraqua::PrepareApplication(app);
    return veraqua::RunDesktop(app, options);
}
