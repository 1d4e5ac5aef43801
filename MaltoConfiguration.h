#pragma once

/// Everything that a host uses: the store, the manager with its items, the editors and the settings
/// window.

#include <MaltoConfiguration/manage/ConfItem.h>
#include <MaltoConfiguration/manage/MajorConfItem.h>
#include <MaltoConfiguration/manage/MtConfManage.h>
#include <MaltoConfiguration/manage/helpers.h>
#include <MaltoConfiguration/store/ConfChange.h>
#include <MaltoConfiguration/store/ConfLoadReport.h>
#include <MaltoConfiguration/store/ConfOperation.h>
#include <MaltoConfiguration/store/ConfStorage.h>
#include <MaltoConfiguration/store/ConfValue.h>
#include <MaltoConfiguration/store/JsonForm.h>
#include <MaltoConfiguration/store/JsonTypes.h>
#include <MaltoConfiguration/widgets/ComboboxDisableWheel.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetBool.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetDouble.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetInt32.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQColor.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQFont.h>
#include <MaltoConfiguration/widgets/ConfDefWidgetQKeySequence.h>
#include <MaltoConfiguration/widgets/ConfWidgetChoice.h>
#include <MaltoConfiguration/widgets/ConfWidgetCombobox.h>
#include <MaltoConfiguration/widgets/ConfWidgetDateTime.h>
#include <MaltoConfiguration/widgets/ConfWidgetDuration.h>
#include <MaltoConfiguration/widgets/ConfWidgetLanguage.h>
#include <MaltoConfiguration/widgets/ConfWidgetMouseAction.h>
#include <MaltoConfiguration/widgets/ConfWidgetShortcut.h>
#include <MaltoConfiguration/widgets/ConfigItemWidget.h>
#include <MaltoConfiguration/widgets/KeySequenceEdit.h>
#include <MaltoConfiguration/widgets/MultiSelectComboBox.h>
#include <MaltoConfiguration/widgets/QSpinBoxDisableWheel.h>
#include <MaltoConfiguration/window/ConfigurationWindow.h>
#include <MaltoConfiguration/window/replaceSCAWithScaledValue.h>
