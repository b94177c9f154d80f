select p.ProductName, sum(l.Quantity) as Pieces
from "Order Lines" l
  join Products p on p.ProductID = l.ProductID
where p.Discontinued = 0
group by p.ProductName
having sum(l.Quantity) > 900
order by 2 desc
