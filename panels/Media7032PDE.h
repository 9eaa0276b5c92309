// The media panel of printer model 7032, which has a matte level and dust removal too.
#pragma once

#include "panels/PanelBase.h"

namespace kwopde {

class Media7032PDE : public PanelBase {
public:
  Media7032PDE();
  ~Media7032PDE() override { releaseChoices(); }

  // The actions, each sent by the control of its option; the sender does not matter.
  void changePrintQualityOption(const Object *) { changeSelection(printQualitySelection); }
  void changePrintFinishOption(const Object *) { changeSelection(printFinishSelection); }
  void changeMatteLevelOption(const Object *) { changeSelection(matteLevelSelection); }
  void changeDustRemovalOption(const Object *) { changeSelection(dustRemovalSelection); }
  void changeRotateImageOption(const Object *) { changeSelection(rotateImageSelection); }
  void changeMirrorImageOption(const Object *) { changeSelection(mirrorImageSelection); }

  Outlet<PopUpButton> printQualityPopUp;
  Outlet<PopUpButton> printFinishPopUp;
  Outlet<TextField> matteLevelLabel;  // the caption; no operation uses it
  Outlet<PopUpButton> matteLevelPopUp;
  Outlet<PopUpButton> dustRemovalPopUp;
  Outlet<PopUpButton> rotateImagePopUp;
  Outlet<PopUpButton> mirrorImagePopUp;
  Outlet<TextField> pageScaleEdit;

  std::unique_ptr<ChoiceList> printQualityChoices;
  std::unique_ptr<ChoiceList> printFinishChoices;
  std::unique_ptr<ChoiceList> matteLevelChoices;
  std::unique_ptr<ChoiceList> dustRemovalChoices;
  std::unique_ptr<ChoiceList> rotateImageChoices;
  std::unique_ptr<ChoiceList> mirrorImageChoices;

  ppd_option_t *printQualityOption = nullptr;
  ppd_option_t *printFinishOption = nullptr;
  ppd_option_t *matteLevelOption = nullptr;
  ppd_option_t *dustRemovalOption = nullptr;
  ppd_option_t *rotateImageOption = nullptr;
  ppd_option_t *mirrorImageOption = nullptr;
  ppd_option_t *pageScaleOption = nullptr;

  PDEChoice *printQualitySelection = nullptr;
  PDEChoice *printFinishSelection = nullptr;
  PDEChoice *matteLevelSelection = nullptr;
  PDEChoice *dustRemovalSelection = nullptr;
  PDEChoice *rotateImageSelection = nullptr;
  PDEChoice *mirrorImageSelection = nullptr;

  int pageScaleValue = 0;  // percent
};

}  // namespace kwopde
