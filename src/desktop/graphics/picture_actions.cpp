#include "desktop/graphics/picture_actions.h"

#include "desktop/program/print_page.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace veln {

bool PrintPicture(Program& program, QWidget* parent, const Drawing& page)
{
  return PrintOnePage(program, parent, [&page](QPrinter& printer) { return PaintPage(printer, page); });
}

void PreviewPicture(QWidget* parent, const Drawing& page)
{
  constexpr QSize FirstSize(800, 700);
  auto* preview = new QPrintPreviewDialog(parent);
  preview->setObjectName("printPreviewDialog");
  preview->setAttribute(Qt::WA_DeleteOnClose);
  preview->resize(FirstSize);
  QObject::connect(preview, &QPrintPreviewDialog::paintRequested, preview,
                   [page](QPrinter* printer) { PaintPage(*printer, page); });
  preview->open();
}

void CopyPicture(const Picture& picture)
{
  constexpr int Enlarged = 2;
  auto* data = new QMimeData;
  data->setImageData(PictureImage(picture.Page, static_cast<int>(picture.Page.PixelWidth) * Enlarged));
  data->setData("image/svg+xml", QByteArray::fromStdString(PictureContent(picture, PictureFormat::Svg, 0)));
  QGuiApplication::clipboard()->setMimeData(data);
}

}  // namespace veln
