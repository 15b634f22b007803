Opened multi_insert_with_attribs.dxf
; drawing: corpus/multi_insert_with_attribs.dxf
; options: --regional en
; check: result.dxf
; check: first.dxf
; run: print_references.py first.dxf FLAG
; run: print_references.py result.dxf FLAG
; X, Y and Z of a label come from one point, each with its own format; broken off, the point of before serves. One command
; is one step to undo.
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 FLAG
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
> Combo2 = FLAG
(typed only; "Combo2 : FLAG" chooses the entry)
> Combo1 = Abscisse X Auto
(typed only; "Combo1 : Abscisse X Auto" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: NAME
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Abscisse X Auto
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
> Text1 = X=
> Combo1 # 2
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 2
> Combo1 = Ordonnée Y Auto
(typed only; "Combo1 : Ordonnée Y Auto" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> Text1 = Y=
> Text2 =  m
> Combo1 # 3
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 3
> Combo1 = Cote Z Auto
(typed only; "Combo1 : Cote Z Auto" chooses the entry)
> show
  Label1: Block to insert:
  Combo2: "FLAG"
    > 0 FLAG
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 3 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
        1 | Attribut 1 | NAME | | Abscisse X Auto
        2 | Attribut 2 | XPOS | | Ordonnée Y Auto
      > 3 | Attribut 3 | YPOS | | Cote Z Auto
    Label3: Value of Attribut 3 :
    Text1: "" (disabled)
    Combo1: "Cote Z Auto"
        0 Saisie manuel
        1 Abscisse X Auto
        2 Ordonnée Y Auto
      > 3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        8 Aire Auto Monoclic
        9 Aire Auto Polyclic
        10 Incrément Auto
        11 Nom du Calque
        12 Couleur
    BtnAttFormat: [...] (tip: Attribute format)
  BtnParametre: [Settings]
  BtnInserer: [Insert]
  OKButton: [Close]
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
Indiquer le point d'insertion du bloc :10,10
Selectionner le point à repérer. 2.675,-4.5,0.5
Indiquer le point d'insertion du bloc :20,10
Selectionner le point à repérer. -0.004,1000000.0005,-2.5
Indiquer le point d'insertion du bloc :30,10
Selectionner le point à repérer. esc
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE first.dxf
Saved first.dxf
Command: U
Undone.
; the formats are remembered from one command to the next, the modes and the leader line aren't
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 FLAG
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
> Combo2 = FLAG
(typed only; "Combo2 : FLAG" chooses the entry)
> Combo1 = Abscisse X Auto
(typed only; "Combo1 : Abscisse X Auto" chooses the entry)
> show
  Label1: Block to insert:
  Combo2: "FLAG"
    > 0 FLAG
  BtnEtiquette: [Select...]
  BtnImport: [Browse...]
  Frame1: Attribute values
    ListView1: 3 rows
        # | Attribut | Etiquette | Valeur | Mode de détermination
      > 1 | Attribut 1 | NAME | | Abscisse X Auto
        2 | Attribut 2 | XPOS | | Saisie manuel
        3 | Attribut 3 | YPOS | | Saisie manuel
    Label3: Value of Attribut 1 :
    Text1: "" (disabled)
    Combo1: "Abscisse X Auto"
        0 Saisie manuel
      > 1 Abscisse X Auto
        2 Ordonnée Y Auto
        3 Cote Z Auto
        4 Longueur Auto Monoclic
        5 Longueur Auto Polyclic
        6 Périmètre Auto Monoclic
        7 Périmètre Auto Polyclic
        8 Aire Auto Monoclic
        9 Aire Auto Polyclic
        10 Incrément Auto
        11 Nom du Calque
        12 Couleur
    BtnAttFormat: [...] (tip: Attribute format)
  BtnParametre: [Settings]
  BtnInserer: [Insert]
  OKButton: [Close]
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: NAME
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Abscisse X Auto
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: "X="
    Label5: Suffix
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: "0.00"
        0 0
        1 0.0
      > 2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        ... and 2 more
> show
  Label1: Attribute 1:
  LabelTag: NAME
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Abscisse X Auto
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: "X="
    Label5: Suffix
    Text2: ""
    Label6: Nombre de décimaux
    Combo1: "0.00"
        0 0
        1 0.0
      > 2 0.00
        3 0.000
        4 0.0000
        5 0.00000
        6 0.000000
        7 0.0000000
        8 0.00000000
        9 0.000000000
> CancelButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :10,20
Selectionner le point à repérer. 1.005,2
Indiquer le 1er point de la ligne de repère :5,5
Indiquer le 2è point de la ligne de repère :6,6
Indiquer le point d'insertion du bloc :
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: none
added: 3 ATTRIB, 1 INSERT, 1 LINE, 1 SEQEND
-- check first.dxf
removed: none
added: 9 ATTRIB, 3 INSERT, 3 SEQEND
-- run print_references.py first.dxf FLAG
Model: at 0,0,0 scale 1,1,1 rotation 15 layer FLAGS NAME='Flag' XPOS='x = 0.000' YPOS='y = 0.000'
Model: at 10,10,0 scale 1,1,1 rotation 0 layer 0 NAME='X=2.68' XPOS='Y=-4.500 m' YPOS='1'
Model: at 20,10,0 scale 1,1,1 rotation 0 layer 0 NAME='X=0.00' XPOS='Y=1000000.001 m' YPOS='-3'
Model: at 30,10,0 scale 1,1,1 rotation 0 layer 0 NAME='X=0.00' XPOS='Y=1000000.001 m' YPOS='-3'
-- run print_references.py result.dxf FLAG
Model: at 0,0,0 scale 1,1,1 rotation 15 layer FLAGS NAME='Flag' XPOS='x = 0.000' YPOS='y = 0.000'
Model: at 10,20,0 scale 1,1,1 rotation 0 layer 0 NAME='X=1.01' XPOS='' YPOS=''
