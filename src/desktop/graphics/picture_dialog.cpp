#include "desktop/graphics/picture_dialog.h"

#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"

#include <QSpinBox>

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

constexpr int FirstWidth = 1600;
constexpr int WidthStep = 100;

}  // namespace

PictureDialog::PictureDialog(Program& program, QWidget* owner, Picture picture, const char* suffix)
    : ChildWindow(program, owner, {Name, "Save picture", "", {}, owner, QPoint(2000, 1500)}),
      picture_(std::move(picture)),
      suffix_(suffix),
      pixels_(FirstWidth)
{
  setWindowModality(Qt::WindowModal);
  QVBoxLayout* options = Column({});
  for (std::size_t i = 0; i < Formats.size(); ++i) {
    formats_.at(i) = MakeOption(this, Formats.at(i).Name, Formats.at(i).Caption, "", [this, i] {
      format_ = i;
      Mirror();
    });
    options->addWidget(formats_.at(i));
  }
  width_ = new QSpinBox(this);
  width_->setObjectName("pictureWidth");
  width_->setRange(NarrowestPicture, WidestPicture);
  width_->setSingleStep(WidthStep);
  width_->setSuffix(" pixels");
  width_->setValue(pixels_);
  width_->setToolTip("width of the picture, up to 8000 pixels");
  connect(width_, &QSpinBox::valueChanged, this, [this](int pixels) { pixels_ = pixels; });
  widthCaption_ = MakeFieldLabel(this, "widthLabel", "&Width:", width_);
  SetColumn(*this,
            {Frame(this, "", "Format", options), Row({widthCaption_, {width_, 1}}), LayoutItem::Rest(),
             ButtonRow({nullptr, MakeButton(this, "cancel", "&Cancel", " close without saving ", Leaves()),
                        MakeButton(this, "save", "&Save...", " choose the file and save the picture ",
                                   [this] { Save(); })})});
  Mirror();
}

/// The format that the file's name tells is the one that is written; without one the name gets an extension.
void PictureDialog::Save()
{
  Program& program = Shared();
  const OfferedFormat& offered = Formats.at(format_);
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
  if (program.Try([&] { SavePicture(picture_, format, pixels_, *file); })) {
    Unload();
  }
}

void PictureDialog::Mirror()
{
  for (std::size_t i = 0; i < formats_.size(); ++i) {
    ShowChoice(*formats_.at(i), i == format_);
  }
  const bool pixels = Formats.at(format_).Format == PictureFormat::Png;
  width_->setEnabled(pixels);
  widthCaption_->setEnabled(pixels);
}

}  // namespace veln
