#include "desktop/app.h"

int main(int argumentCount, char** arguments) {
    veraqua::ReadFontsAhead();
    QApplication app(argumentCount, arguments);
    veraqua::PrepareApplication(app);
    return veraqua::RunDesktop(app);
}
