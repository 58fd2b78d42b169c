// SPDX-License-Identifier: MIT
#include "app/program/PlainDialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

namespace {

void fill(QMessageBox& box, const AlertText& text) {
    box.setTextFormat(Qt::PlainText);
    box.setText(text.title);
    box.setInformativeText(text.message);
    QPushButton* accepts = box.addButton(text.defaultButton, QMessageBox::AcceptRole);
    box.setDefaultButton(accepts);
    if (!text.alternateButton.isEmpty()) {
        box.setEscapeButton(box.addButton(text.alternateButton, QMessageBox::RejectRole));
    }
}

AlertAnswer answerOf(const QMessageBox& box, const AlertText& text) {
    const bool accepted = box.clickedButton() != nullptr && box.clickedButton()->text() == text.defaultButton;
    return accepted ? AlertAnswer::defaultButton : AlertAnswer::alternateButton;
}

QString runFilePanel(const QString& folder, QFileDialog::AcceptMode mode, QFileDialog::FileMode files) {
    QFileDialog panel(nullptr, QString(), folder,
                      QCoreApplication::translate("FilePanel", "Macros (*.keyrill)"));
    panel.setOption(QFileDialog::DontUseNativeDialog);
    panel.setAcceptMode(mode);
    panel.setFileMode(files);
    panel.setDefaultSuffix(QStringLiteral("keyrill"));
    return panel.exec() == QDialog::Accepted ? panel.selectedFiles().value(0) : QString();
}

}  // namespace

AlertAnswer PlainDialogs::runAlert(const AlertText& text) {
    QMessageBox box;
    fill(box, text);
    box.exec();
    return answerOf(box, text);
}

void PlainDialogs::beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) {
    auto* box = new QMessageBox(&panel);
    box->setAttribute(Qt::WA_DeleteOnClose);
    fill(*box, text);
    QObject::connect(box, &QDialog::finished, &panel, [box, text, didEnd = std::move(didEnd)] {
        if (didEnd) didEnd(answerOf(*box, text));
    });
    box->open();
}

QString PlainDialogs::runSavePanel(const QString& folder) {
    return runFilePanel(folder, QFileDialog::AcceptSave, QFileDialog::AnyFile);
}

QString PlainDialogs::runOpenPanel(const QString& folder) {
    return runFilePanel(folder, QFileDialog::AcceptOpen, QFileDialog::ExistingFile);
}
