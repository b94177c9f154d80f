select k.CategoryName, t.returns, t.pieces
from Categories as k
join (
  select p.CategoryID, count(*) as returns, sum(r.Quantity) as pieces
  from Returns as r
  join "Order Lines" as l on l.OrderID = r.OrderID and l.LineNo = r.LineNo
  join Products as p on p.ProductID = l.ProductID
  where r.ReturnedOn >= '2024-01-01'
  group by p.CategoryID
) as t on t.CategoryID = k.CategoryID
where t.returns >= 15 and t.pieces >= 75
order by t.returns desc, k.CategoryName
