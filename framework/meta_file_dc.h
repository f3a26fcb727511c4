// CMetaFileDC: a context that records into an enhanced metafile.
#pragma once

#include "framework/dc.h"

class QOR_API CMetaFileDC : public CDC {
public:
    CMetaFileDC() = default;
    // Deletes a recording never closed, and its metafile.
    ~CMetaFileDC() override;

    // Starts a recording. refDC gives the reference device (null: the screen);
    // fileName null records in memory; bounds, in 0.01 mm, null lets GDI take the
    // picture's own; description is "app\0title\0\0" or null.
    BOOL CreateEnhanced(CDC* refDC, LPCWSTR fileName, LPCRECT bounds, LPCWSTR description);
    // Ends the recording: the metafile, owned by the caller, or null when there was
    // no recording.
    HENHMETAFILE CloseEnhanced();
};
