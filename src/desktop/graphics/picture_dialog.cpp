#include "desktop/graphics/picture_dialog.h"

#include "desktop/controls.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <array>
#include <utility>

namespace veln {

namespace {

struct OfferedFormat {
  PictureFormat Format;
  const char* Caption;
  const char* Filter;
};

constexpr std::array<OfferedFormat, 3> Formats = {
    {{PictureFormat::Png, "PNG (pixels)", "PNG pictures (*.png)"},
     {PictureFormat::Svg, "SVG (shapes and text)", "SVG pictures (*.svg)"},
     {PictureFormat::Pdf, "PDF (shapes and text)", "PDF files (*.pdf)"}}};

}  // namespace

PictureDialog::PictureDialog(Program& program, QWidget* owner, Picture picture, const char* suffix)
    : ChildWindow(program, owner, {Name, "Save picture", {2000, 1500}, "", {}, owner}),
      picture_(std::move(picture)),
      suffix_(suffix)
{
  constexpr int FirstWidth = 1600;
  constexpr int WidthStep = 100;
  setWindowModality(Qt::WindowModal);
  format_ = new QComboBox(this);
  format_->setObjectName("format");
  for (const OfferedFormat& format : Formats) {
    format_->addItem(format.Caption);
  }
  width_ = new QSpinBox(this);
  width_->setObjectName("pictureWidth");
  width_->setRange(NarrowestPicture, WidestPicture);
  width_->setSingleStep(WidthStep);
  width_->setSuffix(" pixels");
  width_->setValue(FirstWidth);
  width_->setToolTip("width of the picture, up to 8000 pixels");
  widthCaption_ = MakeFieldLabel(this, "widthLabel", "&Width:", width_);
  auto* fields = new QFormLayout;
  fields->setHorizontalSpacing(SmallGap);
  fields->setVerticalSpacing(SmallGap);
  fields->addRow(MakeFieldLabel(this, "formatLabel", "&Format:", format_), format_);
  fields->addRow(widthCaption_, width_);
  QPushButton* cancel = MakeButton(this, "cancel", "&Cancel", " close without saving ");
  QPushButton* save = MakeButton(this, "save", "&Save...", " choose the file and save the picture ");
  save->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cancel);
  buttons->addWidget(save);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addLayout(fields);
  layout->addStretch();
  layout->addLayout(buttons);
  connect(format_, &QComboBox::currentIndexChanged, this, [this] { Mirror(); });
  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(save, &QPushButton::clicked, this, [this] { Save(); });
  Mirror();
}

PictureFormat PictureDialog::Format() const
{
  return Formats.at(static_cast<std::size_t>(format_->currentIndex())).Format;
}

/// The format that the file's name tells is the one that is written; without one the name gets an extension.
void PictureDialog::Save()
{
  Program& program = Shared();
  const OfferedFormat& offered = Formats.at(static_cast<std::size_t>(format_->currentIndex()));
  auto file = program.ChooseFile("Save picture", OutputPath(State(), suffix_ + ExtensionOf(offered.Format)),
                                 offered.Filter);
  if (!file || file->empty()) {
    return;
  }
  const auto named = FormatOfName(*file);
  if (!named) {
    *file += ExtensionOf(offered.Format);
    std::error_code ignored;
    if (std::filesystem::exists(*file, ignored) &&
        !program.Ask().Ask(file->filename().string() + " already exists.\nDo you want to replace it?")) {
      return;
    }
  }
  const PictureFormat format = named.value_or(offered.Format);
  if (program.Try([&] { SavePicture(picture_, format, width_->value(), *file); })) {
    Unload();
  }
}

void PictureDialog::Mirror()
{
  width_->setEnabled(Format() == PictureFormat::Png);
  widthCaption_->setEnabled(width_->isEnabled());
}

}  // namespace veln
