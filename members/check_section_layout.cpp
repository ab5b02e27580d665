// Check Section as the user sees it: the I shape with the rolled IPE's bracing
// beside it, and the box. Each field comes after its label.

#include <string>
#include <utility>

#include "members/check_section_parts.hpp"

namespace qorvat::members::check_section {
namespace {

class Builder {
 public:
  // A label numbered in order, then the control.
  Builder& labelled(const char* caption, ControlDecl control) {
    note(caption);
    return add(std::move(control));
  }
  // A label of its own, numbered in order.
  Builder& note(const char* caption) { return add(label("Label" + std::to_string(next_label_++), caption)); }
  Builder& add(ControlDecl control) {
    if (control.container.empty()) control.in(frame_);
    controls_.push_back(std::move(control));
    return *this;
  }
  // Adds a frame to the current container; what follows goes into the frame.
  Builder& frame_of(const char* key, const char* caption) {
    add(frame(key, caption));
    return into(key);
  }
  // What follows goes into this container ("" for the dialog itself).
  Builder& into(const char* key) {
    frame_ = key;
    return *this;
  }
  std::vector<ControlDecl> done() { return std::move(controls_); }

 private:
  std::vector<ControlDecl> controls_;
  std::string frame_;
  int next_label_ = 1;
};

const char* const kHighDuctility = "اعضاي با شکل پذيري زياد ";
const char* const kMediumDuctility = "اعضاي با شکل پذيري متوسط ";
const char* const kAllowedRatio = "نسبت مجاز";

void i_shape(Builder& c) {
  c.into("")
      .frame_of("Frame1", "I Shape")
      .labelled("E=", text_box("Text1", "2040000"))
      .labelled("Fy=", text_box("Text2", "2400"))
      .labelled("2b=", text_box("Text3"))
      .note("عرض بال")
      .labelled("h=", text_box("Text4"))
      .labelled("Ca=", text_box("Text32", "0"))
      .labelled("Ry=", text_box("Text14", "1.15"))
      .add(option_button("Option1", "مبحث دهم سال 1401"))
      .add(option_button("Option2", "مبحث دهم سال 1392 "))
      .add(option_button("Option7", "AISC 341-16"))
      .add(check_box("Check1", kHighDuctility))
      .add(check_box("Check2", kMediumDuctility))
      .add(button("Command1", "Cal"))
      .labelled("t=", text_box("Text5"))
      .labelled("tw=", text_box("Text6"))
      .labelled(kAllowedRatio, text_box("Text7"))
      .labelled(kAllowedRatio, text_box("Text8"))
      .labelled("Zx=", text_box("Text20"))
      .labelled("Sx (cm3)=", text_box("Text21"))
      .labelled("A(cm2)=", text_box("Text23"))
      .labelled("Ix (cm4)=", text_box("Text26"))
      .labelled("rts=", text_box("Text19"))
      .labelled("Lp (cm)=", text_box("Text18"))
      .labelled("Lr (cm)=", text_box("Text17"))
      .note("ضريب برشي جان")
      .labelled("Cv=", text_box("Text16"))
      .add(text_box("Text22"))  // the resistance factor that goes with Cv
      .labelled("(Seism) Lb=", text_box("Text33"))
      .labelled("(Seism) Pbu (ton)=", text_box("Text34"))
      .add(button("Command8", "Command8"))
      .add(button("Command3", "Web Control").disabled())
      .add(button("Command7", "RBS").disabled())
      .add(button("Command12", "Cal").disabled());
}

void rolled_ipe(Builder& c) {
  c.into("")
      .frame_of("Frame4", "IPE-unbraced length")
      .add(button("Command5", "Stahl"))
      .labelled("ht=", text_box("Text35"))
      .labelled("t=", text_box("Text36"))
      .labelled("Sx=", text_box("Text37"))
      .labelled("Zx=", text_box("Text38"))
      .labelled("ry=", text_box("Text39"))
      .labelled("Iy=", text_box("Text44"))
      .labelled("Ry=", text_box("Text52", "1.2"))
      .add(button("Command6", "Cal -->"))
      .labelled("(Seismic) Lb (cm)=", text_box("Text40"))
      .labelled("(Seismic) Pbu (ton)=", text_box("Text41"))
      .labelled("Lr (cm)=", text_box("Text42"))
      .labelled("Lp (cm)=", text_box("Text43"))
      .add(button("Command11", "Cal").disabled());
}

void box(Builder& c) {
  c.into("")
      .frame_of("Frame2", "Box Shape")
      .labelled("E=", text_box("Text9", "2040000"))
      .labelled("Fy=", text_box("Text10", "2400"))
      .labelled("h=", text_box("Text11"))
      .labelled("b=", text_box("Text48"))
      .labelled("Ca=", text_box("Text47", "0"))
      .labelled("Ry=", text_box("Text15", "1.3"))
      .add(option_button("Option3", "مبحث دهم سال 1401 "))
      .add(option_button("Option4", "مبحث دهم سال 1392 "))
      .add(option_button("Option8", "AISC 341-16"))
      .add(check_box("Check3", kHighDuctility))
      .add(check_box("Check4", kMediumDuctility))
      .frame_of("Frame3", "AISC 341-10 , (در مبحث دهم کلا خمشي است) نوع قاب ")
      .add(option_button("Option5", "قاب خمشي ويژه"))
      .add(option_button("Option6", " قاب ساده و مهاربند ويژه"))
      .into("Frame2")
      .add(check_box("Check5", "=").disabled())  // tw tied to tf
      .add(check_box("Check6", " ="))            // b tied to h
      .note("الکترود")
      .add(combo_box("Combo1", {"E60", "E70"}, "E60").picked_only())
      .labelled("Fue=", text_box("Text31", "4200"))
      .labelled("Q=", text_box("Text27", "0.75"))
      .note("ضريب بازرسي")
      .add(button("Command2", "Cal"))
      .labelled("tf=", text_box("Text12"))
      .labelled("tw=", text_box("Text46"))
      .labelled(kAllowedRatio, text_box("Text13"))
      .labelled(kAllowedRatio, text_box("Text45"))
      .labelled("Zx=", text_box("Text24"))
      .labelled("Zy=(cm3)=", text_box("Text25"))
      .labelled("Ix=", text_box("Text29"))
      .labelled("Iy (cm4)=", text_box("Text30"))
      .labelled("A=", text_box("Text49"))
      .labelled("aw (mm)=", text_box("Text28"))
      .labelled("نسبت سطح بال", text_box("Text50"))
      .labelled("نسبت سطح جان", text_box("Text51"))
      .labelled("R1=", text_box("Text53"))
      .labelled("R2=", text_box("Text54"))
      .add(button("Command4", "Col Splice"))
      .add(button("Command9", "K Calc"))
      .add(button("Command10", "Fire Prot").disabled())
      // Sketches of the box; a click on the first shows or hides the detail.
      .add(picture_box("Picture1").at(0))
      .add(picture_box("Picture2"))
      .add(picture_box("Picture3").hidden());
}

}  // namespace

std::vector<ControlDecl> controls() {
  Builder c;
  i_shape(c);
  rolled_ipe(c);
  box(c);
  return c.done();
}

}  // namespace qorvat::members::check_section
