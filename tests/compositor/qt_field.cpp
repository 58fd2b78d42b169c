// SPDX-License-Identifier: MIT
//
// qt_field FILE: a text field of Qt's in a window called "field"; Ctrl+S writes what is in it to the file.
#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>
#include <QShortcut>

int main(int count, char** values) {
    QApplication application(count, values);
    QPlainTextEdit field;
    field.setWindowTitle(QStringLiteral("field"));
    const QShortcut save(QKeySequence(QStringLiteral("Ctrl+S")), &field);
    QObject::connect(&save, &QShortcut::activated, &field, [&] {
        QFile file(QString::fromLocal8Bit(values[count - 1]));
        if (file.open(QIODevice::WriteOnly)) file.write(field.toPlainText().toUtf8());
    });
    field.resize(640, 480);
    field.show();
    return QApplication::exec();
}
