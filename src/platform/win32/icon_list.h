#pragma once
// The small-icon image list of one list view: the list view shows it, this object owns it.
#include <windows.h>
#include <commctrl.h>

#include "base/win32/unique_resource.h"
#include "platform/file_icons.h"

namespace platform::win32 {

class IconList final : public IIconList {
public:
    // Creates the image list and makes it the list view's small-icon list.
    explicit IconList(HWND listView);
    ~IconList() override;
    IconList(const IconList&) = delete;
    IconList& operator=(const IconList&) = delete;

    void Clear() override;
    bool AddFileIcon(const std::string& path) override;
    void AddStandByIcon() override;

    HIMAGELIST Handle() const { return m_images.Get(); }

private:
    HWND m_listView;
    base::UniqueImageList m_images;
    // PicQuestion as the two pictures an image takes, made once: adding them is a copy, while
    // adding the icon itself would take it apart again for every row.
    base::UniqueBitmap m_questionColour;
    base::UniqueBitmap m_questionMask;
    base::UniqueDc m_pictureDc;   // Pic16: the 16 x 16 surface a file's icon is drawn on
    base::UniqueBitmap m_picture;
    base::UniqueBrush m_empty;
};

}  // namespace platform::win32
