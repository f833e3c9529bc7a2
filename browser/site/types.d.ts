// What the program tells the document of its pages, see description.cpp. Measures are in logical
// pixels, of which the layout of a page has 1024x768.

interface FontState {
  comic: boolean;
  size: number;
  bold: boolean;
}

interface MenuState {
  number: number;
  name: string;
  before: string; // the caption, divided at the letter that chooses the item
  letter: string;
  after: string;
  items: MenuState[];
}

interface State {
  number: number;
  name: string;
  kind: string;
  left: number;
  top: number;
  width: number;
  height: number;
  visible: boolean;
  enabled: boolean;
  tip: string;
  spoken: string;
}

interface LabelState extends State {
  text: string;
  font: FontState;
  color: string;
  alignment: string;
  bordered: boolean;
  inMiddle: boolean;
}

interface TextState extends State {
  text: string;
  font: FontState;
}

interface ButtonState extends State {
  text: string;
  font: FontState;
  picture: string;
  twin: number; // 0 for none
}

interface OptionState extends State {
  text: string;
  on: boolean;
}

interface CheckState extends State {
  on: boolean;
}

interface FrameState extends State {
  text: string;
  color: string;
}

interface ImageState extends State {
  picture: string;
}

interface BarState extends State {
  steps: number;
  step: number; // from the left end
}

interface PageState extends State {
  text: string;
  busy: boolean;
  menu: MenuState[];
  pageUp: number; // 0 for no button
  pageDown: number;
  closedByEscape: boolean;
}

// A control with all that it holds.
type Tree = State & { children: Tree[] };
type PageTree = PageState & { children: Tree[] };

interface LettersState {
  comic: boolean;
  size: number; // device pixels
  bold: boolean;
  stretch: number;
  sharp: boolean;
}

// The compiled program.
declare module "*/clinorama.js" {
  export default function start(settings: object): Promise<object>;
}
