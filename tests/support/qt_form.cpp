// SPDX-License-Identifier: MIT
//
// qt_form FOLDER TITLE: the form of gtk_form.py, as Qt 6 shows it.
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

namespace {

class Form : public QDialog {
  public:
    Form(QString folder, const QString& title) : m_folder(std::move(folder)) {
        setWindowTitle(title);
        for (const char* name : {"first", "second", "third"}) addEntry(name);
        addButton("Cancel");
        addButton("OK")->setDefault(true);
        addText();
    }

  private:
    void addEntry(const char* name) {
        auto* entry = new QLineEdit(this);
        m_column.addWidget(entry);
        connect(entry, &QLineEdit::textChanged, this, [=, this](const QString& text) { write(name, text); });
    }
    QPushButton* addButton(const char* label) {
        auto* button = new QPushButton(label, this);
        m_column.addWidget(button);
        connect(button, &QPushButton::clicked, this, [=, this] { write("pressed", label); });
        return button;
    }
    void addText() {
        auto* text = new QPlainTextEdit(this);
        text->setTabChangesFocus(false);
        m_column.addWidget(text);
        connect(text, &QPlainTextEdit::textChanged, this, [=, this] { write("text", text->toPlainText()); });
    }
    void write(const char* name, const QString& text) const {
        QSaveFile file(m_folder + "/" + name);
        if (!file.open(QIODevice::WriteOnly)) qFatal("%s cannot be written", name);
        file.write(text.toUtf8());
        if (!file.commit()) qFatal("%s cannot be written", name);
    }

    QString m_folder;
    QVBoxLayout m_column{this};
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Form form(argv[1], argv[2]);
    form.show();
    return QApplication::exec();
}
