Opened floorplan.dxf
; drawing: corpus/floorplan.dxf
; options: --regional en
; check: result.dxf
; run: print_references.py result.dxf T-section-marker2
; run: print_measures.py result.dxf 1499 149C
; Length and area of closed polylines with arcs, against what their corners and bulges give by hand.
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D10
      1 *D100
      2 *D101
      3 *D102
      4 *D103
      5 *D104
      6 *D105
      7 *D106
      ... and 137 more
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 0 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
    Label3: _
    Text1: ""
    Combo1: "Saisie manuel" (disabled)
      > 0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        ... and 5 more
    BtnAttFormat: [...] (disabled) (tip: Attribute format)
  BtnParametre: [Settings] (disabled)
  BtnInserer: [Insert] (disabled)
  OKButton: [Close]
> Combo2 = T-section-marker2
(typed only; "Combo2 : T-section-marker2" chooses the entry)
> Combo1 = Longueur Auto Monoclic
(typed only; "Combo1 : Longueur Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: SHT#
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Longueur Auto Monoclic
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: ""
    Label5: Suffix
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: "0"
      > 0 0
        1 0.0
        2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        ... and 2 more
> Combo1 # 6
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 2
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> Combo1 # 6
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnParametre
[fmLabels] hidden
[fmParamIns] Vorlane 1.0 : Insertion parameters
  Frame1: Scale
    Label1: X scale
    Text1: "1"
    Label2: Y scale
    Text2: "1"
    Label3: Z scale
    Text3: "1"
  Frame2: Rotation
    CheckBox1: [ ] Specify on screen
    Label4: Rotation angle (°)
    Text4: "0"
  Frame3: Leader line
    CheckBox2: [x] Draw a leader line
    Option1: (o) From a new point
    Option2: ( ) From the picked point
  OKButton: [OK]
> CheckBox2
> OKButton
[fmParamIns] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
; one click gives both
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :0,0
Selectionner le contour ou l'objet. @1499
Indiquer le point d'insertion du bloc :1,0
Selectionner le contour ou l'objet. @149C
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: none
added: 4 ATTRIB, 2 INSERT, 2 SEQEND
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121503
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121531
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121559
skipped invalid handle "INSERT,STDPART2D" in DXF entity "ACAMGFILTERDAT" near line 121587
skipped invalid handle "INSERT" in DXF entity "ACAMGFILTERDAT" near line 121615
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121643
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121735
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121763
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121791
skipped invalid handle "INSERT,STDPART2D" in DXF entity "ACAMGFILTERDAT" near line 121819
skipped invalid handle "INSERT" in DXF entity "ACAMGFILTERDAT" near line 121847
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121875
-- run print_references.py result.dxf T-section-marker2
Model: at 0,0,0 scale 1,1,1 rotation 0 layer 0 SHT#='2.458925' DET#='0.481150'
Model: at 1,0,0 scale 1,1,1 rotation 0 layer 0 SHT#='2.458925' DET#='0.481150'
-- run print_measures.py result.dxf 1499 149C
1499: length 2.458925 area 0.481150
149C: length 2.458925 area 0.481150
