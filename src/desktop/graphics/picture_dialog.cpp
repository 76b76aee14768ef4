#include "desktop/graphics/picture_dialog.h"

#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace veln {

namespace {

struct OfferedFormat {
  PictureFormat Format;
  const char* Name;
  const char* Caption;
  const char* Filter;
};

constexpr std::array<OfferedFormat, 3> Formats = {
    {{PictureFormat::Png, "png", "&PNG (pixels)", "PNG pictures (*.png)"},
     {PictureFormat::Svg, "svg", "S&VG (shapes and text)", "SVG pictures (*.svg)"},
     {PictureFormat::Pdf, "pdf", "P&DF (shapes and text)", "PDF files (*.pdf)"}}};

}  // namespace

PictureDialog::PictureDialog(Program& program, QWidget* owner, Picture picture, const char* suffix)
    : ChildWindow(program, owner, {Name, "Save picture", {2000, 1500}, "", {}, owner}),
      picture_(std::move(picture)),
      suffix_(suffix)
{
  constexpr int FirstWidth = 1600;
  constexpr int WidthStep = 100;
  setWindowModality(Qt::WindowModal);
  auto* frame = new QGroupBox("Format", this);
  auto* options = new QVBoxLayout(frame);
  options->setSpacing(SmallGap);
  for (std::size_t i = 0; i < Formats.size(); ++i) {
    formats_.at(i) = MakeOption(frame, Formats.at(i).Name, Formats.at(i).Caption);
    options->addWidget(formats_.at(i));
    connect(formats_.at(i), &QRadioButton::toggled, this, [this] { Mirror(); });
  }
  width_ = new QSpinBox(this);
  width_->setObjectName("pictureWidth");
  width_->setRange(NarrowestPicture, WidestPicture);
  width_->setSingleStep(WidthStep);
  width_->setSuffix(" pixels");
  width_->setValue(FirstWidth);
  width_->setToolTip("width of the picture, up to 8000 pixels");
  widthCaption_ = MakeFieldLabel(this, "widthLabel", "&Width:", width_);
  auto* size = new QHBoxLayout;
  size->setSpacing(SmallGap);
  size->addWidget(widthCaption_);
  size->addWidget(width_, 1);
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
  layout->addWidget(frame);
  layout->addLayout(size);
  layout->addStretch();
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(save, &QPushButton::clicked, this, [this] { Save(); });
  formats_.front()->setChecked(true);
}

std::size_t PictureDialog::Chosen() const
{
  const auto* const chosen = std::ranges::find_if(formats_, &QRadioButton::isChecked);
  return static_cast<std::size_t>(chosen - formats_.begin());
}

/// The format that the file's name tells is the one that is written; without one the name gets an extension.
void PictureDialog::Save()
{
  Program& program = Shared();
  const OfferedFormat& offered = Formats.at(Chosen());
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
        !program.Ask().Ask(Question::ReplaceFile,
                           file->filename().string() + " already exists.\nDo you want to replace it?")) {
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
  for (QRadioButton* format : formats_) {
    ShowChoice(*format, format->isChecked());
  }
  const bool pixels = formats_.front()->isChecked();
  width_->setEnabled(pixels);
  widthCaption_->setEnabled(pixels);
}

}  // namespace veln
