#pragma once

#include <QApplication>
#include <QTranslator>

#include <string>

namespace quittika {

/// The toolkit's application: name, icon and look of the program, German texts and formats.
class QtApplication {
public:
    /// `argc` and `argv` must stay as long as the application does.
    QtApplication(int& argc, char** argv);

    /// Folder of the executable, in the system's form.
    static std::string program_directory();

private:
    QApplication application_;
    QTranslator translator_;
};

} // namespace quittika
