#include "shell/LoadwickApp.h"

int main(int argc, char **argv)
{
    Loadwick::LoadwickApp::run(argc, argv, Loadwick::LoadwickWindow::Collaborators::ofUser);
}
