Opened example_2000.dxf
; drawing: corpus/example_2000.dxf | bloko
; options: --regional en
; check: result.dxf
; run: print_references.py result.dxf bloko
; run: print_measures.py result.dxf 156 75B
; Length and area of closed polylines with arcs, against what their corners and bulges give by hand.
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D10
      1 *D11
      2 *D12
      3 *D3
      4 *D4
      5 *D5
      6 *D6
      7 *D7
      ... and 5 more
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
> Combo2 = bloko
(typed only; "Combo2 : bloko" chooses the entry)
> Combo1 = Longueur Auto Monoclic
(typed only; "Combo1 : Longueur Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: ETIKEDO
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
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :0,0
Selectionner le contour ou l'objet. @156
Indiquer le point d'insertion du bloc :1,0
Selectionner le contour ou l'objet. @75B
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> Combo1 # 6
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :2,0
Selectionner le contour ou l'objet. @156
Indiquer le point d'insertion du bloc :3,0
Selectionner le contour ou l'objet. @75B
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: none
added: 4 ATTRIB, 4 INSERT, 4 SEQEND
-- run print_references.py result.dxf bloko
Model: at 3642.14,6066.05,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='valoro de la teksto en bloko'
Model: at 0,0,0 scale 3256.52,-1843.49,3256.52 rotation 311.344 layer Tavolo 3 ETIKEDO='valoro'
Model: at 0,0,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='1481.038302'
Model: at 1,0,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='2129.459884'
Model: at 2,0,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='123061.304359'
Model: at 3,0,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='197558.091782'
-- run print_measures.py result.dxf 156 75B
156: length 1481.038302 area 123061.304359
75B: length 2129.459884 area 197558.091782
Opened example_2018.dxf
; drawing: corpus/example_2018.dxf | bloko
; options: --regional en
; check: result.dxf
; run: print_references.py result.dxf bloko
; run: print_measures.py result.dxf 156 75B
; Length and area of closed polylines with arcs, against what their corners and bulges give by hand.
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D10
      1 *D11
      2 *D12
      3 *D13
      4 *D4
      5 *D5
      6 *D6
      7 *D7
      ... and 5 more
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
> Combo2 = bloko
(typed only; "Combo2 : bloko" chooses the entry)
> Combo1 = Longueur Auto Monoclic
(typed only; "Combo1 : Longueur Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: ETIKEDO
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
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :0,0
Selectionner le contour ou l'objet. @156
Indiquer le point d'insertion du bloc :1,0
Selectionner le contour ou l'objet. @75B
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> Combo1 # 6
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :2,0
Selectionner le contour ou l'objet. @156
Indiquer le point d'insertion du bloc :3,0
Selectionner le contour ou l'objet. @75B
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: none
added: 4 ATTRIB, 4 INSERT, 4 SEQEND
-- run print_references.py result.dxf bloko
Model: at 3642.14,6066.05,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='valoro de la teksto en bloko'
Model: at 0,0,0 scale 3256.52,-1843.49,3256.52 rotation 311.344 layer Tavolo 3 ETIKEDO='valoro'
Model: at 0,0,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='1481.038302'
Model: at 1,0,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='2129.459884'
Model: at 2,0,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='123061.304359'
Model: at 3,0,0 scale 1,1,1 rotation 0 layer Tavolo 3 ETIKEDO='197558.091782'
-- run print_measures.py result.dxf 156 75B
156: length 1481.038302 area 123061.304359
75B: length 2129.459884 area 197558.091782
Opened example_r12.dxf
; drawing: corpus/example_r12.dxf | BLOKO
; options: --regional en
; check: result.dxf
; run: print_references.py result.dxf BLOKO
; run: print_measures.py result.dxf 156 75B
; Length and area of closed polylines with arcs, against what their corners and bulges give by hand.
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D10
      1 *D11
      2 *D12
      3 *D13
      4 *D21
      5 *D4
      6 *D5
      7 *D6
      ... and 30 more
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
> Combo2 = BLOKO
(typed only; "Combo2 : BLOKO" chooses the entry)
> Combo1 = Longueur Auto Monoclic
(typed only; "Combo1 : Longueur Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: ETIKEDO
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
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :0,0
Selectionner le contour ou l'objet. @156
Indiquer le point d'insertion du bloc :1,0
Selectionner le contour ou l'objet. @75B
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> Combo1 = Aire Auto Monoclic
(typed only; "Combo1 : Aire Auto Monoclic" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> Combo1 # 6
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :2,0
Selectionner le contour ou l'objet. @156
Indiquer le point d'insertion du bloc :3,0
Selectionner le contour ou l'objet. @75B
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: none
added: 4 ATTRIB, 4 INSERT, 4 SEQEND
-- run print_references.py result.dxf BLOKO
Model: at 3642.14,6066.05,0 scale 1,1,1 rotation 0 layer TAVOLO_3 ETIKEDO='valoro de la teksto en bloko'
Model: at 0,0,0 scale 3256.52,-1843.49,3256.52 rotation 311.344 layer TAVOLO_3 ETIKEDO='valoro'
Model: at 0,0,0 scale 1,1,1 rotation 0 layer TAVOLO_3 ETIKEDO='1481.038302'
Model: at 1,0,0 scale 1,1,1 rotation 0 layer TAVOLO_3 ETIKEDO='2129.459884'
Model: at 2,0,0 scale 1,1,1 rotation 0 layer TAVOLO_3 ETIKEDO='123061.304359'
Model: at 3,0,0 scale 1,1,1 rotation 0 layer TAVOLO_3 ETIKEDO='197558.091782'
-- run print_measures.py result.dxf 156 75B
156: length 1481.038302 area 123061.304359
75B: length 2129.459884 area 197558.091782
