#pragma once

#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <optional>
#include <string>

namespace veln {

/// Reads the start-up settings (text editor, directory of raw survey files, printer resolution) from
/// `VELN_te_fio_info.dat`. On any failure warns and takes the three defaults; the file stays as it is.
void ReadTEandFIOinfo(SurveyState& state, Dialogs& dialogs);

/// Writes the start-up settings and tells that they are saved, or beeps and tells the system's reason.
void SaveTEandFIOinfo(const SurveyState& state, Dialogs& dialogs);

/// What `frmFileIO` shows, and what it goes back to on Cancel.
struct FileIoForm {
  std::string TextEditorAtLoad;
  std::string InputPathAtLoad;
  double DpiFactorAtLoad = 2;
  std::string TxtEditor;   ///< the editor as shown
  int SelectedFactor = 0;  ///< 1, 2 or 4; 0 when no option is selected
};

/// Opens `frmFileIO`: keeps the three values and selects the option of the printer's factor, if it is one of
/// three.
FileIoForm LoadFileIoForm(const SurveyState& state);

/// `cmdBrowse`: a chosen program becomes the text editor behind one blank; without one the box shows the text
/// that the window started with.
void BrowseTextEditor(FileIoForm& form, SurveyState& state, const std::optional<std::string>& chosen);

/// A click on a printer resolution: factor 1, 2 or 4.
void ChoosePrinterDpi(FileIoForm& form, SurveyState& state, int factor);

/// `cmdCancel`: puts the three values back and tells so.
void RestoreSettings(const FileIoForm& form, SurveyState& state, Dialogs& dialogs);

}  // namespace veln
