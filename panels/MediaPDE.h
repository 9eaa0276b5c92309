// The media panel of every printer model but the 7032.
#pragma once

#include "panels/PanelBase.h"

namespace kwopde {

class MediaPDE : public PanelBase {
public:
  MediaPDE();
  ~MediaPDE() override { releaseChoices(); }

  // The actions, each sent by the control of its option; the sender does not matter.
  void changePrintQualityOption(const Object *) { changeSelection(printQualitySelection); }
  void changePrintFinishOption(const Object *) { changeSelection(printFinishSelection); }
  void changeRotateImageOption(const Object *) { changeSelection(rotateImageSelection); }
  void changeMirrorImageOption(const Object *) { changeSelection(mirrorImageSelection); }

  Outlet<PopUpButton> printQualityPopUp;
  Outlet<PopUpButton> printFinishPopUp;
  Outlet<PopUpButton> rotateImagePopUp;
  Outlet<PopUpButton> mirrorImagePopUp;
  Outlet<TextField> pageScaleEdit;

  std::unique_ptr<ChoiceList> printQualityChoices;
  std::unique_ptr<ChoiceList> printFinishChoices;
  std::unique_ptr<ChoiceList> rotateImageChoices;
  std::unique_ptr<ChoiceList> mirrorImageChoices;

  ppd_option_t *printQualityOption = nullptr;
  ppd_option_t *printFinishOption = nullptr;
  ppd_option_t *rotateImageOption = nullptr;
  ppd_option_t *mirrorImageOption = nullptr;
  ppd_option_t *pageScaleOption = nullptr;

  PDEChoice *printQualitySelection = nullptr;
  PDEChoice *printFinishSelection = nullptr;
  PDEChoice *rotateImageSelection = nullptr;
  PDEChoice *mirrorImageSelection = nullptr;

  int pageScaleValue = 0;  // percent
};

}  // namespace kwopde
