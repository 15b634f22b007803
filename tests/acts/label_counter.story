Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --regional en
; check: result.dxf
; run: print_references.py result.dxf PORTE_90
; A counter's first value is written as it was typed, the later ones plain.
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      ... and 14 more
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
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
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
> Combo1 = Incrément Auto
(typed only; "Combo1 : Incrément Auto" chooses the entry)
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format
  Label1: Attribute 1:
  LabelTag: CODE
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Incrément Auto
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: ""
    Label5: Suffix
    Text2: ""
    Label6: Valeur initiale
    Text3: ""
    Label7: Increment
    Text4: ""
> show
  Label1: Attribute 1:
  LabelTag: CODE
  OKButton: [OK]
  Label2: Value mode:
  LabelMode: Incrément Auto
  CancelButton: [Cancel]
  Frame1: Value
    Label4: Prefix
    Text1: ""
    Label5: Suffix
    Text2: ""
    Label6: Valeur initiale
    Text3: ""
    Label7: Increment
    Text4: ""
> Text1 = N
> Text3 = 001
> Text4 = 2
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :1,-10
Indiquer le point d'insertion du bloc :2,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
; a second press goes on
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :3,-10
Indiquer le point d'insertion du bloc :4,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
; another row doesn't stop it; back at its row it starts again
> ListView1 # 2
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :5,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> ListView1 # 1
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :6,-10
Indiquer le point d'insertion du bloc :7,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
; downwards
> BtnAttFormat
[fmLabels] hidden
[fmAttFormat] Vorlane 1.0 : Attribute format (again)
> Text1 =
> Text3 = 100
> Text4 = -5
> OKButton
[fmAttFormat] hidden
[fmLabels] Vorlane 1.0 : Labelling (again)
> BtnInserer
[fmLabels] hidden
Indiquer le point d'insertion du bloc :8,-10
Indiquer le point d'insertion du bloc :9,-10
Indiquer le point d'insertion du bloc :10,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
; the next command starts from the first value again
Command: VNLABEL
[fmLabels] Vorlane 1.0 : Labelling
  Label1: Block to insert:
  Combo2: ""
      0 *D2
      1 *D3
      2 *D4
      3 *U1
      4 _CLOSEDFILLED
      5 ARBRE
      6 BAIGNOIRE
      7 CANAPE
      ... and 14 more
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
> Combo2 = PORTE_90
(typed only; "Combo2 : PORTE_90" chooses the entry)
> Combo1 = Incrément Auto
(typed only; "Combo1 : Incrément Auto" chooses the entry)
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
Indiquer le point d'insertion du bloc :11,-10
Indiquer le point d'insertion du bloc :esc
[fmLabels] Vorlane 1.0 : Labelling (again)
> OKButton
[fmLabels] hidden
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: none
added: 44 ATTRIB, 11 INSERT, 11 SEQEND
-- run print_references.py result.dxf PORTE_90
Model: at 8,5.55,0 scale 1,1,1 rotation -90 layer PORTES CODE='E-A01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 10,5.55,0 scale -1,1,1 rotation 90 layer PORTES CODE='E-B01' PASSAGE='90' COUPE_FEU='1/2 h' HUISSERIE='métal'
Model: at 8.55,0,0 scale 1,1,1 rotation 0 layer PORTES CODE='E-C01' PASSAGE='90' COUPE_FEU='1 h' HUISSERIE='métal'
Model: at 1,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='N001' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 2,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='N3' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 3,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='N5' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 4,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='N7' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 5,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='N9' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 6,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='N001' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 7,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='N3' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 8,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='100' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 9,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='95' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 10,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='90' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
Model: at 11,-10,0 scale 1,1,1 rotation 0 layer 0 CODE='100' PASSAGE='90' COUPE_FEU='néant' HUISSERIE='bois'
