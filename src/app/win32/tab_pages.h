#pragma once
// The features behind the tabs, built in one place: the OS services only they use and one page
// per tab, each registered once with the main window. A new tab adds its page here and one
// registration line in the constructor. A tab whose rows show file icons owns a
// platform::win32::IconList member, initialised with services.frmMain.ListHandle(its list).
#include "app/program.h"
#include "controls/demo_form.h"
#include "mainwindow/main_window_model.h"
#include "mainwindow/win32/frm_main.h"
#include "network/connection_table.h"
#include "network/network_neighbourhood.h"
#include "system/startup_items.h"
#include "processes/process_commands.h"
#include "processes/process_list.h"
#include "platform/win32/dialogs.h"
#include "platform/win32/file_system.h"
#include "platform/win32/icon_list.h"
#include "platform/win32/image_help.h"
#include "platform/win32/ip_helper.h"
#include "platform/win32/message_pump.h"
#include "platform/win32/processes.h"
#include "platform/win32/registry.h"
#include "platform/win32/native_handles.h"
#include "platform/win32/program_settings.h"
#include "platform/win32/winsock.h"
#include "platform/win32/wnet.h"
#include "processes/app_dictionary.h"
#include "processes/applications_tab.h"
#include "processes/appview_alert.h"

namespace app {

// The OS services the pages share with the rest of the program.
struct SharedServices {
    platform::win32::Dialogs& dialogs;
    platform::win32::FileSystem& files;
    platform::win32::MessagePump& pump;
    platform::win32::IpHelper& ipHelper;
    platform::win32::Winsock& winsock;
    const mainwindow::FrmMain& frmMain;  // the list views
    const Program& program;
    controls::DemoForm& frmDemo;  // raises the alerts
};

class TabPages {
public:
    TabPages(mainwindow::MainWindowModel& model, SharedServices services);
    TabPages(const TabPages&) = delete;
    TabPages& operator=(const TabPages&) = delete;

private:
    // "アプリケーションの登録(&A)": the allowed-applications editor.
    void OpenAppEditor();

    platform::win32::Processes m_processes;
    platform::win32::IconList m_taskIcons;
    processes::ProcessListPage m_processList;
    platform::win32::ImageHelp m_imageHelp;
    processes::ProcessCommands m_processCommands;  // the lists' pop-up menu
    platform::win32::WNet m_wnet;
    platform::win32::Registry m_registry;
    platform::win32::IconList m_startupIcons;
    system_items::StartupItemsPage m_startup;
    network::ConnectionTablePage m_connections;
    network::NetworkNeighbourhoodPage m_neighbourhood;
    platform::win32::NativeHandles m_native;
    platform::win32::ProgramSettings m_programSettings;
    platform::win32::IconList m_applicationIcons;
    processes::AppviewAlert m_appAlert;
    processes::AppListFile m_appList;
    processes::AppDictionary m_allowedApplications;
    processes::ApplicationsTab m_applications;
    SharedServices m_services;
};

}  // namespace app
