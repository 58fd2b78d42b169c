// SPDX-License-Identifier: MIT
//
// qt_field FILE: a text field of Qt's in a window called "field"; Ctrl+S writes what is in it to the file,
// and each change of it to FILE.now.
#include <QApplication>
#include <QPlainTextEdit>
#include <QSaveFile>
#include <QShortcut>

namespace {

void write(const QString& name, const QString& text) {
    // Whoever reads it meanwhile finds the one before.
    QSaveFile file(name);
    if (file.open(QIODevice::WriteOnly)) file.write(text.toUtf8());
    file.commit();
}

}  // namespace

int main(int count, char** values) {
    QApplication application(count, values);
    QPlainTextEdit field;
    // Pictures of it show nothing but the text, whether it has the focus or not.
    field.setFrameShape(QFrame::NoFrame);
    field.setCursorWidth(0);
    field.setWindowTitle(QStringLiteral("field"));
    const QShortcut save(QKeySequence(QStringLiteral("Ctrl+S")), &field);
    const QString name = QString::fromLocal8Bit(values[count - 1]);
    QObject::connect(&save, &QShortcut::activated, &field, [&] { write(name, field.toPlainText()); });
    QObject::connect(&field, &QPlainTextEdit::textChanged, &field,
                     [&] { write(name + QStringLiteral(".now"), field.toPlainText()); });
    field.resize(640, 480);
    field.show();
    return QApplication::exec();
}
