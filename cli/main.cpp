#include "cli/app.h"

int main(int argumentCount, char** arguments) { return veraqua::RunProgram(argumentCount, arguments); }
