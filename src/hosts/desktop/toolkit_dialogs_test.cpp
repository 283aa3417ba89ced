#include "hosts/desktop/toolkit_dialogs.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTest>
#include <QTreeView>

#include "hosts/desktop/user_hands.h"

namespace desktop {
namespace {

TEST(ToolkitDialogsTest, HeadingsOfTheFileListAreSeenWhole) {
  QFileDialog dialog;
  dialog.setViewMode(QFileDialog::Detail);
  dialog.resize(520, 400);
  dialog.show();
  hands::settle();
  const QHeaderView& header = *dialog.findChild<QTreeView*>("treeView")->header();
  ASSERT_GT(header.count(), 2);
  for (int i = 1; i < header.count(); ++i) {
    const QString heading = header.model()->headerData(i, Qt::Horizontal).toString();
    EXPECT_GE(header.sectionSize(i), header.fontMetrics().horizontalAdvance(heading)) << heading.toStdString();
    EXPECT_GE(header.sectionSize(i), header.sectionSizeHint(i)) << heading.toStdString();
  }
}

TEST(ToolkitDialogsTest, ThePreviewsScaleHasTheLanguagesDecimalSign) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintPreviewDialog dialog(&printer);
  dialog.resize(700, 500);
  dialog.show();
  hands::settle();
  QLineEdit* scale = nullptr;
  for (const QComboBox* box : dialog.findChildren<QComboBox*>()) {
    if (box->lineEdit() != nullptr && box->lineEdit()->text().endsWith('%')) scale = box->lineEdit();
  }
  ASSERT_NE(scale, nullptr);
  EXPECT_TRUE(scale->text().contains(',')) << scale->text().toStdString();
  EXPECT_FALSE(scale->text().contains('.')) << scale->text().toStdString();
  scale->setText("52,5%");
  QTest::keyClick(scale, Qt::Key_Return);
  EXPECT_NEAR(dialog.findChild<QPrintPreviewWidget*>()->zoomFactor(), 0.525, 0.001);
  EXPECT_EQ(scale->text(), "52,5%");
}

}  // namespace
}  // namespace desktop
