#include "desktop/app.h"

int main(int argumentCount, char** arguments) {
    QApplication app(argumentCount, arguments);
    veraqua::PrepareApplication(app);
    return veraqua::RunDesktop(app);
}
