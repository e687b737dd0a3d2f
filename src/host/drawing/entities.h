// The platform's entity classes, as the calculations know them: opened by identifier, used, closed at once.
// An object stands for an entity of the working drawing while it is open; closing ends the object.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/drawing/drawing.h"
#include "host/drawing/geometry.h"
#include "host/drawing/object_id.h"
#include "host/drawing/status.h"
#include "host/text/wide_text.h"

/// A runtime class of entities. (The classes of registry objects are AcRxClass, of host/runtime.)
struct ZcRxClass {
  const wchar_t* name;
  const ZcRxClass* parent;  // null at the root

  bool isDerivedFrom(const ZcRxClass* other) const;
};

/// The keyed text attributes of an open entity.
class ZcDbFieldGroup {
 public:
  ZcDbFieldGroup(const zwt::Drawing& drawing, std::int32_t index) : drawing_(&drawing), index_(index) {}

  /// Text of a key. eKeyNotFound, with the text empty, where the entity does not have it.
  Acad::ErrorStatus GetField(const wchar_t* key, CString& text) const;

 private:
  const zwt::Drawing* drawing_;
  std::int32_t index_;
};

/// Any entity.
class ZcDbEntity {
 public:
  ZcDbEntity() = default;
  virtual ~ZcDbEntity();
  ZcDbEntity(const ZcDbEntity&) = delete;
  ZcDbEntity& operator=(const ZcDbEntity&) = delete;

  static const ZcRxClass* desc();
  virtual const ZcRxClass* isA() const { return desc(); }

  /// None before the entity is added to a drawing.
  AcDbObjectId objectId() const { return id_; }

  /// The attributes; null before the entity is added.
  ZcDbFieldGroup* Fields();

  /// Sets the layer, also on vertices and attributes. A hidden layer is refused unless allowed. On an entity
  /// not yet added it says where it will lie.
  Acad::ErrorStatus setLayer(AcDbObjectId layer, bool onSubentities = true, bool allowHidden = false);

  /// Erases the entity, which must be open for write. Taking an erasure back is for undo alone.
  Acad::ErrorStatus erase(bool erasing = true);

  /// Ends the use of an open entity; the object is gone afterwards.
  Acad::ErrorStatus close();

 protected:
  zwt::Drawing* drawing_ = nullptr;
  std::int32_t index_ = -1;
  AcDbObjectId newLayer_;

  Acad::ErrorStatus WriteStatus() const;

 private:
  friend class zwt::Drawing;
  friend AcDbObjectId AddToModelSpace(ZcDbEntity* entity, int close);

  /// Puts what a new object holds into a drawing.
  virtual AcDbObjectId AppendTo(zwt::Drawing& drawing);

  AcDbObjectId id_;
  AcDb::OpenMode mode_ = AcDb::kForRead;
  std::unique_ptr<ZcDbFieldGroup> fields_;
};

/// An entity of a piping system: other objects can be attached to it.
class ZcDbPipeSysEntity : public ZcDbEntity {
 public:
  static const ZcRxClass* desc();
  const ZcRxClass* isA() const override { return desc(); }

  /// Appends the attached objects, in drawing order.
  void GetAttachObjectId(ZcDbObjectIdList& objects) const;
};

/// An entity that others connect to.
class ZcDbPipeEntity : public ZcDbPipeSysEntity {
 public:
  static const ZcRxClass* desc();
  const ZcRxClass* isA() const override { return desc(); }

  /// Appends the connected entities of a class, in drawing order.
  void GetConnectEnt(ZcDbObjectIdList& connected, const ZcRxClass* wanted) const;
};

/// A water pipe.
class ZcDbWtPipe : public ZcDbPipeEntity {
 public:
  static const ZcRxClass* desc();
  const ZcRxClass* isA() const override { return desc(); }

  AcGePoint3d GetStartPoint() const;
  AcGePoint3d GetEndPoint() const;
  /// Length along the pipe, mm.
  double GetPipeLength() const;
  CString GetMaterial() const;
  CString GetWtSystem() const;
  /// Nominal diameter, mm.
  double GetDiameter() const;
  /// Needs the pipe open for write; a number that is not finite is refused.
  Acad::ErrorStatus SetDiameter(double diameter);
  /// The way along the pipe; the caller deletes it.
  ZcGeCurve3d* GetPipeCurve() const;
};

namespace ZcGiText {

/// How a text stands to its point.
enum TextAlignment {
  kAlignmentLeft = 0,
  kAlignmentCenter = 1,
  kAlignmentRight = 2,
  kAlignmentAligned = 3,
  kAlignmentMiddle = 4,
  kAlignmentFit = 5,
  kAlignmentTopLeft = 6,
  kAlignmentTopCenter = 7,
  kAlignmentTopRight = 8,
  kAlignmentMiddleLeft = 9,
  kAlignmentMiddleCenter = 10,
  kAlignmentMiddleRight = 11,
  kAlignmentBottomLeft = 12,
  kAlignmentBottomCenter = 13,
  kAlignmentBottomRight = 14,
};

}  // namespace ZcGiText

/// A text. What is set counts when it is added to a drawing.
class ZcDbText : public ZcDbEntity {
 public:
  ZcDbText() = default;
  explicit ZcDbText(const CString& content);

  static const ZcRxClass* desc();
  const ZcRxClass* isA() const override { return desc(); }

  void SetTextString(const CString& content);
  /// Height in drawing units; the second argument of the platform's call changes nothing here.
  void SetTextHeight(double height, int mode = 1);
  void SetPosition(const AcGePoint3d& position);
  /// Radians, counter-clockwise.
  void SetRotation(double rotation);
  void SetColorIndex(std::int32_t color);
  void SetTextStyle(AcDbObjectId style);
  /// Aligned and fitted texts, which need two points, stand as left and middle ones.
  void SetAlignment(ZcGiText::TextAlignment alignment);

 private:
  AcDbObjectId AppendTo(zwt::Drawing& drawing) override;

  zwt::TextValues values_;
};

/// Display style of a diameter annotation; 0 is prefix and number on the pipe.
using DimStyle = std::int32_t;

/// A diameter annotation. Added to a drawing it attaches itself to the pipe whose midpoint its location is.
class ZcDbWtSymbDiameterDim : public ZcDbEntity {
 public:
  static const ZcRxClass* desc();
  const ZcRxClass* isA() const override { return desc(); }

  void SetStyle(DimStyle style);
  void SetLocation(const AcGePoint3d& location);
  void SetPrefix(const CString& prefix);
  void SetDiameter(const CString& diameter);
  void SetTextHeight(double height);
  void SetTextStyle(AcDbObjectId style);

 private:
  AcDbObjectId AppendTo(zwt::Drawing& drawing) override;
  std::string ExtendedData(const zwt::Drawing& drawing, std::int32_t pipe) const;

  DimStyle style_ = 0;
  AcGePoint3d location_;
  CString prefix_;
  CString diameter_;
  double textHeight_ = 2.5;
  AcDbObjectId textStyle_;
};

/// Opens an entity of the working drawing. Another status than eOk, with object null: the identifier names
/// nothing, the entity is erased, of another class, or open already (one writer, or any number of readers).
template <class T>
Acad::ErrorStatus acdbOpenAcDbObject(T*& object, AcDbObjectId id, AcDb::OpenMode mode) {
  ZcDbEntity* entity = nullptr;
  const Acad::ErrorStatus status = zwt::WorkingDrawing().Open(id, mode, T::desc(), entity);
  object = static_cast<T*>(entity);
  return status;
}

/// Adds a new entity (made with new) to model space of the working drawing, which owns it from then on. With
/// close 1 the object is closed and gone; else it stays open for write. Null where the entity cannot be
/// added; the object is gone then as well.
AcDbObjectId AddToModelSpace(ZcDbEntity* entity, int close);

/// Text attribute of an entity. Status other than eOk, and an empty text: no such entity, or no such key.
Acad::ErrorStatus ZwtGetEntityFields(AcDbObjectId id, const wchar_t* key, CString& text);
Acad::ErrorStatus ZwtSetEntityFields(AcDbObjectId id, const wchar_t* key, const CString& text);

using AcDbDatabase = zwt::Drawing;

/// Text height of water annotations of a drawing, mm; null is the working drawing, as below.
double ZcDbGetWtTextHeight(const AcDbDatabase* database = nullptr);
/// Identifier of a text style that exists afterwards.
AcDbObjectId ZcDtInitTextStyle(const CString& name, AcDbDatabase* database = nullptr);
/// Identifier of a layer that exists afterwards.
AcDbObjectId ZcDtInitLayer(const CString& name, AcDbDatabase* database = nullptr);
/// Layer name of three words: those that are not empty, joined by "-". What no layer name can hold becomes
/// "_".
CString GetZwtLayer(const CString& first, const CString& second, const CString& third);
/// Has the front end draw anew.
void UpdateGraphics();
