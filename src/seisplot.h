#pragma once
// seisplot: the whole public API.

// Framework stand-ins
#include "platform/core/CArchive.h"
#include "platform/core/CFile.h"
#include "platform/core/CFileDialog.h"
#include "platform/core/CObject.h"
#include "platform/core/COleDateTime.h"
#include "platform/core/CPoint.h"
#include "platform/core/CString.h"
#include "platform/core/ConsoleUserInterface.h"
#include "platform/core/Exceptions.h"
#include "platform/core/HeadlessUserInterface.h"
#include "platform/core/ResourceModule.h"
#include "platform/core/ScriptedUserInterface.h"
#include "platform/core/StringTable.h"
#include "platform/core/Types.h"
#include "platform/core/UserInterface.h"
#include "platform/ui/CDialog.h"
#include "platform/ui/Clipboard.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/DialogDriver.h"
#include "platform/ui/PrintDialog.h"
#include "platform/ui/QtUserInterface.h"
#include "platform/ui/ScriptedDialogs.h"

// Device contexts and their surfaces, windows
#include "platform/gdi/CDC.h"
#include "platform/gdi/CWnd.h"
#include "platform/gdi/DocumentDC.h"
#include "platform/gdi/GdiObjects.h"
#include "platform/gdi/RecordingDC.h"
#include "platform/gl/CurrentDevice.h"
#include "platform/gl/FontDisplayLists.h"
#include "platform/gl/GLDeviceDC.h"
#include "platform/gl/HeadlessGLContext.h"

// The host's geometry, units, selection and numerics
#include "host/Boxes.h"
#include "host/CSelObject.h"
#include "host/CVector.h"
#include "host/CurveBase.h"
#include "host/CurveColl.h"
#include "host/Intersect.h"
#include "host/Mathp.h"
#include "host/PCurve.h"
#include "host/RPoint2D.h"
#include "host/RPoint2DColl.h"
#include "host/RPoly.h"
#include "host/Units.h"
#include "host/VarMan.h"
#include "host/dialogs/CoordinateDialogs.h"

// Records
#include "records/Accelerogram.h"
#include "records/RecordReport.h"
#include "records/Sinusoids.h"

// Spectra
#include "spectra/Envelope.h"
#include "spectra/Spectrum.h"
#include "spectra/SpectrumColl.h"

// Drawing primitives and the font descriptor
#include "draw/clip/Clip.h"
#include "draw/font/SFont.h"
#include "draw/gdi/Areas.h"
#include "draw/gdi/Arrows.h"
#include "draw/gdi/DeviceConventions.h"
#include "draw/gdi/Lines.h"
#include "draw/gdi/Symbols.h"
#include "draw/gdi/Text.h"
#include "draw/ogl/AreasOGL.h"
#include "draw/ogl/ArrowsOGL.h"
#include "draw/ogl/LinesOGL.h"
#include "draw/ogl/SymbolsOGL.h"
#include "draw/ogl/TextOGL.h"

// Curve plots
#include "plot/CurvePlot.h"

// The library's dialogs
#include "dialogs/curves/CurveDisplay.h"
#include "dialogs/curves/CurveMixing.h"
#include "dialogs/polygon/GetPolygon.h"
#include "dialogs/polygon/PolygonVertices.h"
